#include "korva/KORVADOMObjectSerializerI.h"

// Out of line, so that the interface's table of virtual operations has one home.
KORVADOMObjectSerializerI::~KORVADOMObjectSerializerI() = default;
