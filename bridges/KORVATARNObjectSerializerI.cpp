#include "korva/KORVATARNObjectSerializerI.h"

// Out of line, so that the interface's table of virtual operations has one home.
KORVATARNObjectSerializerI::~KORVATARNObjectSerializerI() = default;
