#include "korva/KORVA_AttachmentContainerI.h"

// Out of line, so that the interface's table of virtual operations has one home.
KORVA_AttachmentContainerI::~KORVA_AttachmentContainerI() = default;
