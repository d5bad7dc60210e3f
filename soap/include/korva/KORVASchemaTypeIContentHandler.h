/// The reader of one value: a parameter, a header entry, or a whole document.
#pragma once

#include <korva/KORVAContentHandler.h>
#include <korva/KORVASchemaTypeI.h>
#include <zel/ZELOwner.h>

#include <cstddef>

class KORVANamespaceMapping;
class KORVA_ReadingObserver;
class KORVA_ReadingPolicy;
class KORVAObjectRegistryI;
class KORVA_AttachmentHandler;

namespace korva {
class RootReader;
class WideEvents;
}  // namespace korva

/// Builds a typed value from the SAX2 events of one element and all that it holds. Everything that
/// is built belongs to the registry, also after a failure.
///
/// An element's type is told by its `xsi:type`, otherwise by its declaration. Elements that nobody
/// declares are skipped with all they hold. Does not recurse: depth costs memory, not stack.
///
/// The items of a fault's `detail` (a KORVAFaultDetailArray) are undocumented details when they do
/// not tell their type. The first one makes the value a KORVAUndocumentedFaultDetailArray, which
/// takes the place of what was read before; a documented detail behind it is skipped.
///
/// Failures of the document are KORVAExceptions: 0xEA41D35C and 0xEA4152EA (child or text in a nil
/// element), 0xEA40320B and 0xEA4ACDA5 (in a reference to an attachment), 0xEA4AA334 (child of a
/// simple value), 0xEA4BCA5D (item of a wrong type), 0xEA4B8476 (element twice), 0xEA4BA852,
/// 0xEA4CB90C, 0xEA48385C, 0xEA4BD4DB and 0xEA487D84 (types), 0xEA407F89 (text of a simple value),
/// and what the objects raise when a child is set. References to attachments end in an assertion
/// while there is no attachment handler. std::bad_alloc passes to whoever hands in the events.
class KORVA_EXPORT KORVASchemaTypeIContentHandler : public KORVAContentHandler {
public:
    using ObjectType = KORVASchemaTypeI::ObjectType;

    /// No value of `xsi:type` or `SOAP-ENC:arrayType` is as long as this, in UTF-16 units.
    static constexpr std::size_t DEFAULT_TMP_CHAR_BUFFER_SIZE = 256;

    /// Reads the element that the parser has just reported, up to its end tag, which need not be
    /// handed in. `namespaceMapping`, `registry` and `converter` must outlive the handler.
    /// @param expectedType the declared type; with e_Unknown an element that does not tell its type
    ///     is skipped whole
    /// @throws KORVAException, ZELAssertError as told above; also for an empty `localName`
    /// @throws ZELOutOfMemoryError, std::bad_alloc no memory is left
    KORVASchemaTypeIContentHandler(const XMLCh* localName, const xercesc::Attributes& attributes,
                                   KORVANamespaceMapping* namespaceMapping,
                                   KORVAObjectRegistryI* registry, I18NConverter& converter,
                                   ObjectType expectedType);

    /// Reads a document, whose root comes by `startElement`. Its end puts the root's value into
    /// `*resultSlot` if that is an object; an unknown root, a nil one and a number leave it null.
    /// @throws ZELOutOfMemoryError no memory is left
    KORVASchemaTypeIContentHandler(void** resultSlot, KORVANamespaceMapping* namespaceMapping,
                                   KORVAObjectRegistryI* registry, I18NConverter& converter);

    ~KORVASchemaTypeIContentHandler() override;

    /// Who is told of references to attachments; null, as at first, refuses them. Not owned.
    void setAttachmentHandler(KORVA_AttachmentHandler* handler);

    /// How what comes from now on is read, KORVA_ReadingPolicy::stated() at first, and who is told
    /// of what is not read as it stands; null, as at first, is nobody. The observer is not owned.
    /// @param maximumReferences how many elements may refer to others (`href="#..."`), where the
    ///     policy follows references; more end in KORVAException 0xEA4F0001
    /// @throws ZELOutOfMemoryError no memory is left
    void setPolicy(const KORVA_ReadingPolicy& policy, KORVA_ReadingObserver* observer,
                   std::size_t maximumReferences = 100'000);

    /// The type of the element under construction; e_Unknown in a skipped one.
    /// @throws ZELAssertError there is none
    ObjectType getParamType() const;

    /// Ends the text of the element under construction and gives its value: an object, a
    /// ZELByteBuffer for text, a KORVAXSBase64Binary, or the address of a number or boolean. It
    /// belongs to the registry. Null for a nil element, in a skipped one, and when there is none.
    /// @throws KORVAException 0xEA407F89, ZELAssertError as told above
    void* getParamValue();

    void startDocument() override;
    void endDocument() override;
    void startElement(const XMLCh* uri, const XMLCh* localName, const XMLCh* qName,
                      const xercesc::Attributes& attributes) override;
    void endElement(const XMLCh* uri, const XMLCh* localName, const XMLCh* qName) override;
    void characters(const XMLCh* text, XMLSize_t length) override;
    void startPrefixMapping(const XMLCh* prefix, const XMLCh* uri) override;
    void endPrefixMapping(const XMLCh* prefix) override;

protected:
    /// Whether text that comes now is part of the value of the element under construction: not in a
    /// composite, where text between children is nobody's, nor in an element that must have none.
    bool takesText() const;

private:
    void storeResult();

    ZELOwner<korva::RootReader> m_reader;
    ZELOwner<korva::WideEvents> m_events;
    void** m_resultSlot;  ///< of a document, or null
};
