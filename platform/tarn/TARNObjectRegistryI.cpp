#include "tarn/TARNObjectRegistryI.h"

// Out of line, so that the interface's table of virtual operations has one home.
TARNObjectRegistryI::~TARNObjectRegistryI() = default;
