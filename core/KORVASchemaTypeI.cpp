#include "korva/KORVASchemaTypeI.h"

// Out of line, so that the interface's table of virtual operations has one home.
KORVASchemaTypeI::~KORVASchemaTypeI() = default;
