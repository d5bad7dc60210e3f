/// SOAP 1.1 envelopes of messages.
#pragma once

#include <korva/KORVASOAPMessageISerializerI.h>

/// Writes a message as an envelope in the SOAP encoding (KORVASOAPSerializer): the bus header, then
/// the operation's element with the parameters. Client and server use it alike; a reply differs by
/// the ending "Response" of its operation's element.
class KORVA_EXPORT KORVASOAPMessageISerializer : public KORVASOAPMessageISerializerI {
public:
    KORVASOAPMessageISerializer();
    ~KORVASOAPMessageISerializer() override;

    void setWriteXmlDeclaration(bool write) override;
    void setWriteNullElements(bool write) override;
    /// As KORVASOAPSerializer has it.
    void setReplaceInvalidText(bool replace);
    void serialize(KORVAPortTypeBinding& binding, KORVAMessageI& message,
                   BRIMOutputStream& stream) override;

private:
    bool m_writeNullElements;
    bool m_writeXmlDeclaration;
    bool m_replaceInvalidText;
};
