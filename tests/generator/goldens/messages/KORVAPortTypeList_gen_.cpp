// Made by korva-schemac from sample/service.wsdl; do not edit.
#include "messages/MessageDescriptor.h"

#include <korva/KORVAServicePortType.h>

#if KORVA_CORE_VERSION != 1
#error "This file was made for another version of the core: run korva-schemac again."
#endif

namespace korva {
constinit const PortTypeInstance portTypeInstances[] = {
    []() -> KORVA_PortType* { return &KORVAServicePortType::getInstance(); },
};

constinit const std::size_t portTypeCount = 1;

} // namespace korva
