#include "korva/KORVASOAPMessageIDeserializerI.h"

// Out of line, so that the interface's table of virtual operations has one home.
KORVASOAPMessageIDeserializerI::~KORVASOAPMessageIDeserializerI() = default;
