#include "korva/KORVAObjectRegistryI.h"

#include "core/TextValue.h"

// Out of line, so that the interface's table of virtual operations has one home.
KORVAObjectRegistryI::~KORVAObjectRegistryI() = default;

const char* KORVAObjectRegistryI::keep(const char* text) {
    return korva::copyText(text, korva::TextCopy::Array, *this);
}

const char* KORVAObjectRegistryI::keep(std::string_view text) {
    return korva::copyText(text, *this);
}
