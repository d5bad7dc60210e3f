/// How faults become envelopes.
#pragma once

#include <korva/KORVAExport.h>

class BRIMOutputStream;
class KORVAHalyardHeader;
class KORVASOAPFault;

/// Writes SOAP envelopes that hold a fault. Keeps nothing between calls; used by one thread at a
/// time.
class KORVA_EXPORT KORVASOAPFaultSerializerI {
public:
    virtual ~KORVASOAPFaultSerializerI();

    /// Writes the envelope of a fault, documented details first.
    ///
    /// The texts of the fault itself (code, text, actor) are written as they stand, unless the
    /// serializer says otherwise: whoever sets them escapes what is markup in XML. A text that
    /// somebody else had a hand in would bring its markup into the envelope. Those of header and
    /// details are escaped here. A fault
    /// code with the prefix "soapenv" or "soap-env", in any case, gets the prefix of this envelope.
    ///
    /// What is written goes to the stream at once: after an exception the stream holds a part of
    /// the envelope, which the caller throws away.
    /// @param header the bus header; null leaves the header of the envelope empty
    /// @param writeXmlDeclaration start with the XML declaration
    /// @param formatted put each element of the frame on a line of its own, indented by tabs;
    ///     header and details are written so in any case
    /// @throws ZELAssertError "ZEL_ASSERT(pFaultDetail);",
    ///     "ZEL_ASSERT(pUndocumentedFaultDetail);": a row of the details is null; or an enumeration
    ///     in them has no value
    /// @throws KORVAException 0xEA4F0004: a text that is escaped holds what no document can;
    ///     0xEA4F0005: an object of header or details holds itself
    /// @throws ZELOutOfMemoryError no memory is left
    /// The stream's own exceptions pass through.
    virtual void serialize(const KORVAHalyardHeader* header, const KORVASOAPFault& fault,
                           BRIMOutputStream& stream, bool writeXmlDeclaration, bool formatted) = 0;

    KORVASOAPFaultSerializerI(const KORVASOAPFaultSerializerI&) = delete;
    KORVASOAPFaultSerializerI& operator=(const KORVASOAPFaultSerializerI&) = delete;

protected:
    KORVASOAPFaultSerializerI() = default;
};
