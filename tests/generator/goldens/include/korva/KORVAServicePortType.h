// Made by korva-schemac from sample/service.wsdl; do not edit.
#pragma once

#include <korva/KORVA_PortType.h>

#if KORVA_CORE_VERSION != 1
#error "This file was made for another version of the core: run korva-schemac again."
#endif

/// The operations of the service "service".
class KORVA_EXPORT KORVAServicePortType final : public KORVA_PortType {
public:
    /// The one instance, made on first use and never destroyed. Any thread may call this.
    /// @throws ZELOutOfMemoryError no memory is left
    static KORVAServicePortType& getInstance();

private:
    KORVAServicePortType();
};
