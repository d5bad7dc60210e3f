#include <korva/KORVASchemaTypeArrayI.h>
#include <korva/KORVASchemaTypeI.h>

// Out of line, so that each interface's table of virtual operations has one home.
KORVASchemaTypeI::~KORVASchemaTypeI() = default;
KORVASchemaTypeArrayI::~KORVASchemaTypeArrayI() = default;
