#include "korva/KORVAPortTypeBinding.h"

#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

namespace {

// Named as the members, whose names are in the assertions' texts.
void assertTexts(const char* m_pOperationName, const char* m_pOperationNamespace,
                 const char* m_pSOAPAction) {
    ZEL_ASSERT(m_pOperationName);
    ZEL_ASSERT(m_pOperationNamespace);
    ZEL_ASSERT(m_pSOAPAction);
}

}  // namespace

KORVAPortTypeBinding* KORVAPortTypeBinding::create(
    const char* pOperationName, const char* pOperationNamespace, const char* pSOAPAction,
    const KORVAPortTypeI& portType, KORVAMessageI& inputMessage, KORVAMessageI& outputMessage) {
    ZEL_TRY {
        assertTexts(pOperationName, pOperationNamespace, pSOAPAction);
        return new KORVAPortTypeBinding(pOperationName, pOperationNamespace, pSOAPAction, portType,
                                        inputMessage, outputMessage, false);
    }
    ZEL_CATCH(nullptr);
}

KORVAPortTypeBinding* KORVAPortTypeBinding::create(
    const char* pOperationName, const char* pOperationNamespace, const char* pSOAPAction,
    const KORVAPortTypeI& portType, KORVAMessageI* inputMessage, KORVAMessageI* outputMessage) {
    ZEL_TRY {
        assertTexts(pOperationName, pOperationNamespace, pSOAPAction);
        // Before there are references to them, for those are never null.
        if (inputMessage == nullptr)
            zel::literalAssertionFailed("ZEL_ASSERT(&m_inputMessage);", ZEL_LOCATION);
        if (outputMessage == nullptr)
            zel::literalAssertionFailed("ZEL_ASSERT(&m_outputMessage);", ZEL_LOCATION);
        return new KORVAPortTypeBinding(pOperationName, pOperationNamespace, pSOAPAction, portType,
                                        *inputMessage, *outputMessage, true);
    }
    ZEL_CATCH(nullptr);
}

KORVAPortTypeBinding::KORVAPortTypeBinding(const char* pOperationName,
                                           const char* pOperationNamespace, const char* pSOAPAction,
                                           const KORVAPortTypeI& portType,
                                           KORVAMessageI& inputMessage,
                                           KORVAMessageI& outputMessage, bool hold)
    : m_pOperationName(pOperationName),
      m_pOperationNamespace(pOperationNamespace),
      m_pSOAPAction(pSOAPAction),
      m_boundPortType(portType),
      m_inputMessageHolder(hold ? &inputMessage : nullptr),
      m_outputMessageHolder(hold ? &outputMessage : nullptr),
      m_inputMessage(inputMessage),
      m_outputMessage(outputMessage) {}

KORVAPortTypeBinding::~KORVAPortTypeBinding() = default;
