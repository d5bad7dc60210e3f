#include "generator/model/Schema.h"

#include <algorithm>

namespace korva::schemac::model {

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

bool Schema::isHeader(const Message& message) const {
    return std::any_of(headerMessages.begin(), headerMessages.end(), [&](const QName& header) {
        return header.name == message.name && header.uri == message.uri;
    });
}

std::string hexOf(std::int32_t identity) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string out = "0x";
    for (int shift = 28; shift >= 0; shift -= 4) {
        out.push_back(digits[(static_cast<std::uint32_t>(identity) >> shift) & 0xF]);
    }
    return out;
}

}  // namespace korva::schemac::model
