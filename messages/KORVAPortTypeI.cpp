#include "korva/KORVAPortTypeI.h"

KORVAPortTypeI::~KORVAPortTypeI() = default;
