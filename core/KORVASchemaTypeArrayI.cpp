#include "korva/KORVASchemaTypeArrayI.h"

// Out of line, so that the interface's table of virtual operations has one home.
KORVASchemaTypeArrayI::~KORVASchemaTypeArrayI() = default;
