// The writer of SOAP 1.1 faults.
#pragma once

#include <korva/KORVASOAPFaultSerializerI.h>

/// Writes documented details in the section-5 encoding, undocumented ones as literal XML without
/// type attributes.
class KORVA_EXPORT KORVASOAPFaultSerializer : public KORVASOAPFaultSerializerI {
public:
    KORVASOAPFaultSerializer();
    ~KORVASOAPFaultSerializer() override;

    void serialize(const KORVAHalyardHeader* header, const KORVASOAPFault& fault,
                   BRIMOutputStream& stream, bool writeXmlDeclaration, bool formatted) override;
};
