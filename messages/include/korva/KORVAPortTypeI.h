/// What every service of the bus offers: a table of operations that messages are bound to.
#pragma once

#include <korva/KORVAMessageI.h>
#include <korva/KORVASchemaTypeI.h>

#include <vector>

class KORVAMessageParam;
class KORVAPortTypeBinding;

/// The operations of one service: which messages each uses, which SOAP action it carries, and the
/// types of its parameters. Immutable; any number of threads may use it at once.
///
/// Every binding comes with a reference count of 0: hold it in a ZELSmartPointer. So do messages;
/// an operation that takes a message by pointer holds a reference on it from when it has found the
/// operation, and a failure after that ends a message on which nobody else has one.
class KORVA_EXPORT KORVAPortTypeI {
public:
    using ObjectType = KORVASchemaTypeI::ObjectType;

    virtual ~KORVAPortTypeI();

    /// The declared type of the operation's parameter; e_Unknown if there is no such operation or
    /// parameter. Where versions of an operation disagree it is that of the first.
    /// @throws ZELAssertError a name is null
    virtual ObjectType resolveOperationParamType(const char* pOperationName,
                                                 const char* pParamName) const = 0;

    /// Binds new messages to the first version of the operation that has all of `params`, in their
    /// order; others may be missing. So an empty list takes the first version. The parameters'
    /// values are stored in the input message. The binding keeps the pointer `pOperationName`,
    /// whose text must outlive it.
    /// @throws ZELAssertError the name, a parameter or a parameter's name is null
    /// @throws KORVAException 0xEA4112C6: no version fits, with the names of the operation and of
    ///     this port type
    /// @throws ZELOutOfMemoryError no memory is left
    virtual KORVAPortTypeBinding* createPortTypeBinding(
        const char* pOperationName, const std::vector<KORVAMessageParam*>& params) const = 0;

    /// Binds new messages to the operation whose request has this type.
    /// @throws ZELAssertError there is none, or it is that of the null messages, which can't be
    ///     made here
    /// @throws ZELOutOfMemoryError no memory is left
    virtual KORVAPortTypeBinding* createPortTypeBinding(
        const KORVAMessageI::MessageType& messageType) const = 0;

    /// Binds the two messages, which must outlive the binding: it holds no reference on them.
    /// @throws ZELAssertError no operation has this request, or its reply is another
    /// @throws ZELOutOfMemoryError no memory is left
    virtual KORVAPortTypeBinding* createPortTypeBinding(KORVAMessageI& inputMessage,
                                                        KORVAMessageI& outputMessage) const = 0;

    /// Binds the request, on which the binding holds a reference, and a new reply.
    /// @throws ZELAssertError `pInputMessage` is null, no operation has this request, or it is the
    ///     null request, whose reply can't be made here
    /// @throws ZELOutOfMemoryError no memory is left
    virtual KORVAPortTypeBinding* createPortTypeBinding(KORVAMessageI* pInputMessage) const = 0;

    /// The service's name, a literal.
    virtual const char* getName() const = 0;

    /// The URI of the namespace of the operations' elements, a literal.
    virtual const char* getBoundNamespace() const = 0;
};
