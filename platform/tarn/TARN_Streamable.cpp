#include "tarn/TARN_Streamable.h"

// Out of line, so that the interface's table of virtual operations has one home.
TARN_Streamable::~TARN_Streamable() = default;
