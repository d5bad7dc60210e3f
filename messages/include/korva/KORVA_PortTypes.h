/// All services of the bus.
#pragma once

#include <korva/KORVAExport.h>

#include <vector>

class KORVAPortTypeI;
class KORVA_PortType;

/// The port types of the schema. Any thread may use it.
class KORVA_EXPORT KORVA_PortTypes {
public:
    /// All port types, ascending by their classes' names: what a server of all services hands to
    /// its reader. Each is a KORVA_PortType. Lives as long as the process.
    /// @throws ZELOutOfMemoryError no memory is left
    static const std::vector<KORVAPortTypeI*>& all();

    /// The port type with this name, such as "dispatcher"; null if there is none.
    /// @throws ZELAssertError `name` is null
    /// @throws ZELOutOfMemoryError no memory is left
    static KORVA_PortType* find(const char* name);
};
