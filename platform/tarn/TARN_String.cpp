#include "tarn/TARN_String.h"

TARN_String::TARN_String() = default;
TARN_String::~TARN_String() = default;
