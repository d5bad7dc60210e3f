/// The writer of SOAP 1.1 faults.
#pragma once

#include <korva/KORVASOAPFaultSerializerI.h>

/// Writes documented details in the section-5 encoding, undocumented ones as literal XML without
/// type attributes.
class KORVA_EXPORT KORVASOAPFaultSerializer : public KORVASOAPFaultSerializerI {
public:
    KORVASOAPFaultSerializer();
    ~KORVASOAPFaultSerializer() override;

    /// Whether code, text and actor of the fault are escaped like all other text. At first they are
    /// not: whoever sets them has done it.
    void setEscapeTexts(bool escape);

    /// As KORVASOAPSerializer has it; for code, text and actor only if they are escaped.
    void setReplaceInvalidText(bool replace);

    void serialize(const KORVAHalyardHeader* header, const KORVASOAPFault& fault,
                   BRIMOutputStream& stream, bool writeXmlDeclaration, bool formatted) override;

private:
    bool m_escapeTexts;
    bool m_replaceInvalidText;
};
