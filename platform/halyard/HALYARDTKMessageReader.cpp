#include "halyard/HALYARDTKMessageReader.h"

// Out of line, so that the interface's table of virtual operations has one home.
HALYARDTKMessageReader::~HALYARDTKMessageReader() = default;
