#include "korva/KORVATARNObjectDeserializerI.h"

// Out of line, so that the interface's table of virtual operations has one home.
KORVATARNObjectDeserializerI::~KORVATARNObjectDeserializerI() = default;
