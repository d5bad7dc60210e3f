#include "korva/KORVAObjectSerializerI.h"

// Out of line, so that the interface's table of virtual operations has one home.
KORVAObjectSerializerI::~KORVAObjectSerializerI() = default;
