/// The operations of all port types, as the vocabulary's table has them.
#pragma once

#include "tests/support/Tables.h"

#include <korva/KORVAMessageI.h>
#include <korva/KORVAPortTypeI.h>

#include <string>
#include <vector>

namespace korva::test {

/// One row of a port type's table, with the port type itself.
struct PortTypeOperation {
    const KORVAPortTypeI* portType;
    std::string name;
    std::string request;  ///< "asynchRun_Request"
    std::string reply;
    std::string action;  ///< with its authority
};

/// In the order of the port types' tables.
const std::vector<PortTypeOperation>& operations();

/// The identity of a message.
KORVAMessageI::MessageType messageTypeOf(const std::string& messageName);

}  // namespace korva::test
