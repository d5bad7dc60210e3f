#include "korva/KORVAZELMessage.h"

#include <i18n/KORVAI18NRes.h>

namespace {
// The text that names this library's message catalogue.
constexpr int componentText = 18;
}  // namespace

KORVAZELMessage::KORVAZELMessage(std::uint32_t id)
    : ZELMessage(KORVAI18NRes::getString(componentText), id) {}
