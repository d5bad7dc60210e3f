#include "core/TextValue.h"

#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVAXSBase64Compressed.h>
#include <korva/KORVA_CharStreamable.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>

namespace korva {

namespace {

struct Free {
    void operator()(char* p) const { std::free(p); }
};

template <class Owner>
const char* registerText(Owner copy, std::size_t size, const char* text,
                         KORVAObjectRegistryI::KORVADeleteMode mode,
                         KORVAObjectRegistryI& registry) {
    std::memcpy(copy.get(), text, size);
    registry.registerPointer(copy.get(), mode);
    return copy.release();
}

template <class Value>
Value* registerValue(std::unique_ptr<Value> value, KORVAObjectRegistryI& registry) {
    registry.registerPointer(value.get());
    return value.release();
}

}  // namespace

const char* copyText(const char* text, TextCopy form, KORVAObjectRegistryI& registry) {
    if (text == nullptr) return nullptr;
    if (KORVA_CharStreamable::isCharStreamable(text))
        return registerValue(std::make_unique<KORVA_CharStreamable>(text), registry)->asCharStar();
    const std::size_t size = std::strlen(text) + 1;
    if (form == TextCopy::Array)
        return registerText(std::unique_ptr<char[]>(new char[size]), size, text,
                            KORVAObjectRegistryI::eKORVADeleteArray, registry);
    std::unique_ptr<char, Free> copy(static_cast<char*>(std::malloc(size)));
    if (copy == nullptr) throw std::bad_alloc();
    return registerText(std::move(copy), size, text, KORVAObjectRegistryI::eKORVAFree, registry);
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
    return registerValue(std::move(copy), registry);
}

bool equalBinaries(const KORVAXSBase64Binary* left, const KORVAXSBase64Binary* right) {
    if (left == nullptr || right == nullptr) return left == right;
    return *left == *right;
}

}  // namespace korva
