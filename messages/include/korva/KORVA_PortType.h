/// What the port types have in common.
#pragma once

#include <korva/KORVAMessageFactory.h>
#include <korva/KORVAPortTypeI.h>
#include <korva/KORVA_Operation.h>

namespace korva {
struct OperationRow;
struct PortTypeDescriptor;
}  // namespace korva

/// The implementation behind every port type: it answers the contract of KORVAPortTypeI from the
/// service's table of operations.
class KORVA_EXPORT KORVA_PortType : public KORVAPortTypeI {
public:
    /// What an operation exchanges.
    struct OperationMetadata {
        constexpr OperationMetadata(const KORVAMessageI::MessageType& input,
                                    const KORVAMessageI::MessageType& output, const char* action)
            : inputMessageType(input), outputMessageType(output), soapAction(action) {}

        KORVAMessageI::MessageType inputMessageType;
        KORVAMessageI::MessageType outputMessageType;
        const char* soapAction;  ///< the whole text, a literal
    };

    KORVA_PortType(const KORVA_PortType&) = delete;
    KORVA_PortType& operator=(const KORVA_PortType&) = delete;
    ~KORVA_PortType() override;

    ObjectType resolveOperationParamType(const char* pOperationName,
                                         const char* pParamName) const override;
    KORVAPortTypeBinding* createPortTypeBinding(
        const char* pOperationName, const std::vector<KORVAMessageParam*>& params) const override;
    KORVAPortTypeBinding* createPortTypeBinding(
        const KORVAMessageI::MessageType& messageType) const override;
    KORVAPortTypeBinding* createPortTypeBinding(KORVAMessageI& inputMessage,
                                                KORVAMessageI& outputMessage) const override;
    KORVAPortTypeBinding* createPortTypeBinding(KORVAMessageI* pInputMessage) const override;
    const char* getName() const override;
    const char* getBoundNamespace() const override;

    /// All operations, but for that of the null messages.
    KORVA_Operations getOperations() const { return KORVA_Operations(*this); }

    /// Whether a caller with `params` means the operation whose parameters are `expectedParamList`:
    /// always when there are none, otherwise when all of them are found there in their order. Lists
    /// of one length are compared one to one.
    /// @throws ZELAssertError the list, a parameter or a parameter's name is null
    static bool isSameParameterSignature(
        const KORVAMessageFactory::KORVAParamDescriptor* expectedParamList,
        const std::vector<KORVAMessageParam*>& params);

    /// Whether the names are equal, and the type is the declared one or a class derived from it.
    /// Without a value this makes an object of the parameter's type for the time of the call.
    /// @throws ZELAssertError the parameter or a name is null
    /// @throws KORVAException 0xEA47EC7B: no object of the type can be made
    /// @throws ZELOutOfMemoryError no memory is left
    static bool isSameParameter(const KORVAMessageFactory::KORVAParamDescriptor& descriptor,
                                const KORVAMessageParam* param2);

protected:
    /// `descriptor` is constant data.
    explicit KORVA_PortType(const korva::PortTypeDescriptor& descriptor) noexcept
        : m_descriptor(descriptor) {}

private:
    friend class KORVA_Operations;

    const korva::OperationRow* findOperation(const char* name,
                                             const std::vector<KORVAMessageParam*>& params) const;
    const korva::OperationRow& operationOf(KORVAMessageI::MessageType inputMessageType) const;
    KORVAPortTypeBinding* bind(const char* operationName, const OperationMetadata& metadata,
                               KORVAMessageI* inputMessage) const;

    const korva::PortTypeDescriptor& m_descriptor;
};
