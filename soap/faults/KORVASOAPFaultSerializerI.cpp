#include "korva/KORVASOAPFaultSerializerI.h"

// Out of line, so that the interface's table of virtual operations has one home.
KORVASOAPFaultSerializerI::~KORVASOAPFaultSerializerI() = default;
