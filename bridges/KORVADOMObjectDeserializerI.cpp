#include "korva/KORVADOMObjectDeserializerI.h"

// Out of line, so that the interface's table of virtual operations has one home.
KORVADOMObjectDeserializerI::~KORVADOMObjectDeserializerI() = default;
