/// Where messages come from when only their type is known.
#pragma once

#include <korva/KORVAMessageI.h>
#include <korva/KORVASchemaTypeI.h>

/// Makes messages by their type, and lists their parameters. The singleton has no state; any number
/// of threads may use it at once.
class KORVA_EXPORT KORVAMessageFactory {
public:
    using ObjectType = KORVASchemaTypeI::ObjectType;

    /// One row of a message's list of parameters.
    struct KORVAParamDescriptor {
        const char* name;  ///< null in the row that ends the list
        ObjectType type;   ///< as declared
    };

    static KORVAMessageFactory& getInstance();

    KORVAMessageFactory(const KORVAMessageFactory&) = delete;
    KORVAMessageFactory& operator=(const KORVAMessageFactory&) = delete;

    /// A new message with a reference count of 0; hold it in a ZELSmartPointer. Null for a type
    /// that the schema doesn't have, and for the two null messages, which are made by their
    /// constructors only.
    /// @throws ZELAssertError `msgType` is e_Unknown
    /// @throws ZELOutOfMemoryError no memory is left
    KORVAMessageI* create(const KORVAMessageI::MessageType& msgType) const;

    /// The message's parameters in declared order, behind them a row without a name; constant data.
    /// Null for a type that `create` doesn't make.
    /// @throws ZELAssertError `msgType` is e_Unknown
    const KORVAParamDescriptor* getParameterTypes(const KORVAMessageI::MessageType& msgType) const;

    virtual ~KORVAMessageFactory();

    // One list for each message, as getParameterTypes gives it.
#include <korva/KORVAParamDescriptors_gen_.inc>

private:
    KORVAMessageFactory() = default;
};
