#include "korva/KORVAPortTypeI.h"

// Out of line, so that the interface's table of virtual operations has one home.
KORVAPortTypeI::~KORVAPortTypeI() = default;
