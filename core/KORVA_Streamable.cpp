#include "korva/KORVA_Streamable.h"

#include <korva/KORVA_AttachmentContainerI.h>

// Out of line, so that each interface's table of virtual operations has one home.
KORVA_Streamable::~KORVA_Streamable() = default;

bool KORVA_Streamable::rewind() {
    return false;
}
KORVA_AttachmentContainerI::~KORVA_AttachmentContainerI() = default;
