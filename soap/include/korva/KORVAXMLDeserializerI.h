/// How plain XML documents become objects.
#pragma once

#include <korva/KORVAExport.h>

class BRIMInputStream;
class KORVAObjectRegistryI;
class KORVASchemaTypeI;

/// Reads documents that hold one typed object each. Serves one call at a time, and may be used
/// again after a failure. Documents that are not in UTF-8 and XML 1.0 need the XML platform
/// (XMLPlatformUtils::Initialize), which is the caller's to start and to end; without it they end
/// in ZELAssertError.
class KORVA_EXPORT KORVAXMLDeserializerI {
public:
    virtual ~KORVAXMLDeserializerI();

    /// The object that the root element of the document in `stream` is; null if its `xsi:type` is
    /// none that is known, if it is nil, and if it is a number or a boolean. Belongs to `registry`,
    /// as does all that was read before a failure.
    /// @throws ZELAssertError `registry` is null; the root is a text or binary; or a precondition
    ///     broke while reading
    /// @throws KORVAException 0xEA4EB50B: the document has a document type; 0xEA441F8B: it is not
    ///     well-formed; 0xEA4F0001: it exceeds a limit; and the failures that
    ///     KORVASchemaTypeIContentHandler tells of
    /// @throws ZELOutOfMemoryError no memory is left
    /// @throws ZELStdExceptionError any other standard exception
    /// A ZELThrowable of the stream passes through. The trace line of this operation tells line,
    /// column and element of a failure.
    virtual KORVASchemaTypeI* parse(BRIMInputStream& stream, KORVAObjectRegistryI* registry) = 0;

    KORVAXMLDeserializerI(const KORVAXMLDeserializerI&) = delete;
    KORVAXMLDeserializerI& operator=(const KORVAXMLDeserializerI&) = delete;

protected:
    KORVAXMLDeserializerI() = default;
};
