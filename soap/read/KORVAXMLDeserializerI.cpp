#include "korva/KORVAXMLDeserializerI.h"

// Out of line, so that the interface's table of virtual operations has one home.
KORVAXMLDeserializerI::~KORVAXMLDeserializerI() = default;
