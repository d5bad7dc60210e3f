#include <halyard/HALYARDTKMessagePart.h>
#include <halyard/HALYARDTKMessageReader.h>

HALYARDTKMessagePart::~HALYARDTKMessagePart() = default;
HALYARDTKMessageReader::~HALYARDTKMessageReader() = default;

const char* HALYARDTKMessageReader::vendor() {
    return "ours";
}
