#include "core/TextValue.h"

#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVAXSBase64Compressed.h>
#include <korva/KORVA_CharStreamable.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <utility>

namespace korva {

namespace {

struct Free {
    void operator()(char* p) const { std::free(p); }
};

}  // namespace

const char* copyText(const char* text, TextCopy form, KORVAObjectRegistryI& registry) {
    if (text == nullptr) return nullptr;
    if (KORVA_CharStreamable::isCharStreamable(text))
        return registry.make<KORVA_CharStreamable>(text)->asCharStar();
    if (form == TextCopy::Array) return copyText(std::string_view(text), registry);
    const std::size_t size = std::strlen(text) + 1;
    std::unique_ptr<char, Free> copy(static_cast<char*>(std::malloc(size)));
    if (copy == nullptr) throw std::bad_alloc();
    std::memcpy(copy.get(), text, size);
    return registry.own(std::move(copy), KORVAObjectRegistryI::eKORVAFree);
}

const char* copyText(std::string_view text, KORVAObjectRegistryI& registry) {
    std::unique_ptr<char[]> copy(new char[text.size() + 1]);
    text.copy(copy.get(), text.size());
    copy[text.size()] = '\0';
    return registry.own(std::move(copy), KORVAObjectRegistryI::eKORVADeleteArray);
}

bool equalTexts(const char* left, const char* right) {
    if (left == nullptr || right == nullptr) return left == right;
    const bool streamed = KORVA_CharStreamable::isCharStreamable(left);
    if (streamed != KORVA_CharStreamable::isCharStreamable(right)) return false;
    if (!streamed) return std::strcmp(left, right) == 0;
    return reinterpret_cast<const KORVA_CharStreamable*>(left)->sharesPiecesWith(
        *reinterpret_cast<const KORVA_CharStreamable*>(right));
}

KORVAXSBase64Binary* copyBinary(const KORVAXSBase64Binary* value, KORVAObjectRegistryI& registry) {
    if (value == nullptr) return nullptr;
    std::unique_ptr<KORVAXSBase64Binary> copy;
    if (const auto* compressed = dynamic_cast<const KORVAXSBase64Compressed*>(value);
        compressed != nullptr && value->streamable() != nullptr) {
        auto streamed = std::make_unique<KORVAXSBase64Compressed>();
        streamed->reference(*value->streamable(), compressed->isCompressed());
        copy = std::move(streamed);
    } else if (value->streamable() != nullptr) {
        copy = std::make_unique<KORVAXSBase64Binary>();
        copy->reference(*value->streamable());
    } else if (value->pcount() == 0) {
        copy = std::make_unique<KORVAXSBase64Binary>();
    } else {
        copy = std::make_unique<KORVAXSBase64Binary>(value->str(), value->pcount());
    }
    copy->setIsContentId(value->getIsContentId());
    return registry.own(std::move(copy));
}

bool equalBinaries(const KORVAXSBase64Binary* left, const KORVAXSBase64Binary* right) {
    if (left == nullptr || right == nullptr) return left == right;
    return *left == *right;
}

}  // namespace korva
