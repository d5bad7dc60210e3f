#include "halyard/HALYARDTKMessagePart.h"

// Out of line, so that the interface's table of virtual operations has one home.
HALYARDTKMessagePart::~HALYARDTKMessagePart() = default;
