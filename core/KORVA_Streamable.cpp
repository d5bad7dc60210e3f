#include "korva/KORVA_Streamable.h"

// Out of line, so that the interface's table of virtual operations has one home.
KORVA_Streamable::~KORVA_Streamable() = default;

bool KORVA_Streamable::rewind() {
    return false;
}
