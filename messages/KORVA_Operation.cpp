#include "korva/KORVA_Operation.h"

#include "messages/MessageDescriptor.h"

#include <cstring>

namespace {

KORVA_Operation::Parameters parametersOf(KORVAMessageI::MessageType message) {
    const KORVAMessageFactory::KORVAParamDescriptor* const first =
        KORVAMessageFactory::getInstance().getParameterTypes(message);
    const auto* end = first;
    while (end->name != nullptr)
        ++end;
    return {first, end};
}

}  // namespace

const char* KORVA_Operation::getName() const {
    return m_row->operation;
}

int KORVA_Operation::getVersion() const {
    // The table begins with a row whose name is empty, and no operation's is.
    int version = 1;
    for (const auto* row = m_row; std::strcmp((--row)->operation, m_row->operation) == 0;)
        ++version;
    return version;
}

const char* KORVA_Operation::getNamespace() const {
    return m_portType->getBoundNamespace();
}

const char* KORVA_Operation::getSOAPAction() const {
    return m_row->metadata.soapAction;
}

KORVAMessageI::MessageType KORVA_Operation::getRequestType() const {
    return m_row->metadata.inputMessageType;
}

KORVAMessageI::MessageType KORVA_Operation::getReplyType() const {
    return m_row->metadata.outputMessageType;
}

KORVA_Operation::Parameters KORVA_Operation::getParameters() const {
    return parametersOf(getRequestType());
}

KORVA_Operation::Parameters KORVA_Operation::getReplyParameters() const {
    return parametersOf(getReplyType());
}

KORVAPortTypeBinding* KORVA_Operation::createBinding() const {
    return m_portType->createPortTypeBinding(getRequestType());
}
