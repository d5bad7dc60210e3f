/// One operation of a port type together with the messages of one call.
#pragma once

#include <korva/KORVAExport.h>
#include <korva/KORVAMessageI.h>
#include <zel/ZELReferenceCount.h>
#include <zel/ZELSmartPointer.h>

class KORVAPortTypeI;

/// What goes on the wire for one call, and the messages that carry it. Reference-counted from 0;
/// used by one thread at a time.
///
/// The texts aren't copied: they must outlive the binding, as the literals of a port type do.
class KORVA_EXPORT KORVAPortTypeBinding : public ZELReferenceCount {
public:
    /// A binding that holds no reference on the messages, which must outlive it.
    /// @throws ZELAssertError a text is null
    /// @throws ZELOutOfMemoryError no memory is left
    static KORVAPortTypeBinding* create(const char* pOperationName, const char* pOperationNamespace,
                                        const char* pSOAPAction, const KORVAPortTypeI& portType,
                                        KORVAMessageI& inputMessage, KORVAMessageI& outputMessage);

    /// A binding that holds a reference on each message until it ends. A failure leaves the
    /// messages' counts alone.
    /// @throws ZELAssertError a text or a message is null
    /// @throws ZELOutOfMemoryError no memory is left
    static KORVAPortTypeBinding* create(const char* pOperationName, const char* pOperationNamespace,
                                        const char* pSOAPAction, const KORVAPortTypeI& portType,
                                        KORVAMessageI* inputMessage, KORVAMessageI* outputMessage);

    KORVAPortTypeBinding(const KORVAPortTypeBinding&) = delete;
    KORVAPortTypeBinding& operator=(const KORVAPortTypeBinding&) = delete;
    ~KORVAPortTypeBinding() override;

    const char* getOperationName() const { return m_pOperationName; }
    const char* getOperationNamespace() const { return m_pOperationNamespace; }
    const char* getSOAPAction() const { return m_pSOAPAction; }
    const KORVAPortTypeI& getBoundPortType() const { return m_boundPortType; }
    KORVAMessageI& getInputMessage() const { return m_inputMessage; }
    KORVAMessageI& getOutputMessage() const { return m_outputMessage; }

private:
    KORVAPortTypeBinding(const char* pOperationName, const char* pOperationNamespace,
                         const char* pSOAPAction, const KORVAPortTypeI& portType,
                         KORVAMessageI& inputMessage, KORVAMessageI& outputMessage, bool hold);

    const char* m_pOperationName;
    const char* m_pOperationNamespace;
    const char* m_pSOAPAction;
    const KORVAPortTypeI& m_boundPortType;
    ZELSmartPointer<KORVAMessageI> m_inputMessageHolder;
    ZELSmartPointer<KORVAMessageI> m_outputMessageHolder;
    KORVAMessageI& m_inputMessage;
    KORVAMessageI& m_outputMessage;
};
