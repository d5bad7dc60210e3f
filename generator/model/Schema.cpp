#include "generator/model/Schema.h"

#include <array>

namespace korva::schemac::model {

namespace {

constexpr std::array<std::string_view, 11> kPlainTypeNames = {
    "",        "xs:string",   "xs:int",     "xs:integer",      "xs:decimal",
    "xs:time", "xs:dateTime", "xs:boolean", "xs:base64Binary", "xs:float",
    "xs:QName"};

constexpr std::size_t kPrefixLength = std::string_view("xs:").size();

}  // namespace

bool Type::isA(const Type& other) const {
    for (const Type* type = this; type != nullptr; type = type->baseType()) {
        if (type == &other) return true;
    }
    return false;
}

const std::string& Schema::messagesFile() const {
    return messages.empty() ? files.front() : messages.front().at.file;
}

const std::string& Schema::portTypesFile() const {
    return portTypes.empty() ? messagesFile() : portTypes.front().at.file;
}

const Type* Schema::find(std::string_view name) const {
    const auto found = typesByName.find(name);
    return found == typesByName.end() ? nullptr : found->second;
}

std::string_view plainTypeName(PlainType type) {
    return kPlainTypeNames[static_cast<std::size_t>(type)];
}

PlainType plainTypeOf(std::string_view localName) {
    for (std::size_t i = 1; i < kPlainTypeNames.size(); ++i) {
        if (kPlainTypeNames[i].substr(kPrefixLength) == localName) return static_cast<PlainType>(i);
    }
    return PlainType::None;
}

}  // namespace korva::schemac::model
