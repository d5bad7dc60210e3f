#include "korva/KORVASAXObjectSerializerI.h"

// Out of line, so that the interface's table of virtual operations has one home.
KORVASAXObjectSerializerI::~KORVASAXObjectSerializerI() = default;
