#include "korva/KORVAObjectRegistryI.h"

#include "core/TextValue.h"

KORVAObjectRegistryI::~KORVAObjectRegistryI() = default;

const char* KORVAObjectRegistryI::keep(const char* text) {
    return korva::copyText(text, korva::TextCopy::Array, *this);
}

const char* KORVAObjectRegistryI::keep(std::string_view text) {
    return korva::copyText(text, *this);
}
