#include "korva/KORVASOAPMessageISerializerI.h"

// Out of line, so that the interface's table of virtual operations has one home.
KORVASOAPMessageISerializerI::~KORVASOAPMessageISerializerI() = default;
