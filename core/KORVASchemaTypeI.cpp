#include "korva/KORVASchemaTypeI.h"

#include <korva/KORVASchemaTypeArrayI.h>

// Out of line, so that each interface's table of virtual operations has one home.
KORVASchemaTypeI::~KORVASchemaTypeI() = default;
KORVASchemaTypeArrayI::~KORVASchemaTypeArrayI() = default;
