/// The tables of messages that korva-schemac writes.
#pragma once

#include "core/Descriptor.h"

#include <korva/KORVAMessageFactory.h>
#include <korva/KORVAMessageI.h>
#include <korva/KORVA_PortType.h>

#include <cstddef>
#include <cstdint>
#include <typeinfo>

namespace korva {

struct MessageDescriptor {
    const char* name;  ///< "asynchRun_Request"
    KORVAMessageI::MessageType type;
    const std::type_info* typeInfo;     ///< of the class
    const FieldDescriptor* parameters;  ///< in declared order; arrays are pointers here
    std::uint16_t parameterCount;

    const FieldDescriptor* begin() const { return parameters; }
    const FieldDescriptor* end() const { return parameters + parameterCount; }
};

/// What the message factory knows of one message.
struct MessageTypeRow {
    KORVAMessageI::MessageType type;
    KORVAMessageI* (*create)();
    const KORVAMessageFactory::KORVAParamDescriptor* parameters;  ///< ended by a null name
};

/// Ascending by type as signed number. Defined by generated code.
extern const MessageTypeRow messageTypes[];
extern const std::size_t messageTypeCount;

/// One operation of a port type.
struct OperationRow {
    constexpr OperationRow(const char* name, KORVAMessageI::MessageType input,
                           KORVAMessageI::MessageType output, const char* action)
        : operation(name), metadata(input, output, action) {}

    const char* operation;  ///< empty for the row of the [Null] messages
    KORVA_PortType::OperationMetadata metadata;
};

/// The declared type of one parameter of an operation.
struct OperationParameterRow {
    const char* key;  ///< "run-options"
    KORVASchemaTypeI::ObjectType type;
};

/// One port type as the generated code describes it.
struct PortTypeDescriptor {
    const char* className;           ///< "KORVADispatcherPortType"
    const char* name;                ///< "dispatcher"
    const char* boundNamespace;      ///< URI of the operation elements
    const OperationRow* operations;  ///< ascending by name, equal names in the schema's order
    std::size_t operationCount;
    const OperationParameterRow* parameters;  ///< ascending by key
    std::size_t parameterCount;
};

/// What gives each port type, ascending by class. Defined by generated code.
using PortTypeInstance = KORVA_PortType* (*)();
extern const PortTypeInstance portTypeInstances[];
extern const std::size_t portTypeCount;

}  // namespace korva
