/// The SOAP 1.1 encoding of schema objects.
#pragma once

#include <korva/KORVAObjectSerializerI.h>

#include <string>
#include <vector>

/// Writes objects in the section-5 encoding of SOAP 1.1: every object in place inside its parent,
/// each with its `xsi:type`, one element per line, a tab for each level. Text is UTF-8.
///
/// Depth is bounded by memory only. An object that is its own descendant is refused, but after the
/// first ten thousand levels have been written.
class KORVA_EXPORT KORVASOAPSerializer : public KORVAObjectSerializerI {
public:
    /// One value of an envelope: a header entry or a parameter.
    struct KORVA_EXPORT ObjectContext {
        ObjectContext(const void* value, ObjectType valueType, std::string qualifiedName);

        const void* object;  ///< as `serialize` takes it; stays the caller's, may be null
        ObjectType type;
        std::string name;  ///< qualified, "bus:result"
    };

    KORVASOAPSerializer();
    ~KORVASOAPSerializer() override;

    void serialize(const void* object, ObjectType type, const char* qName,
                   BRIMOutputStream& stream) override;
    void setWriteNamespaceDeclarations(bool write) override;
    void setWriteXmlDeclaration(bool write) override;
    void setWriteNullElements(bool write) override;

    /// Whether text that no document can hold is written with U+FFFD in its place: control
    /// characters but for tab, line feed and carriage return, U+FFFE, U+FFFF, and what is no UTF-8.
    /// Otherwise, as at first, it is refused.
    void setReplaceInvalidText(bool replace);

    /// Writes an envelope. A null header entry is left out (or written as a null element, with
    /// setWriteNullElements); a null parameter is always written as a null element.
    /// @param operationName local name of the element around the parameters; null or empty: there
    ///     is no such element
    /// @param pOperationNamespace the namespace of that element, written as it stands
    /// @throws ZELAssertError as `serialize`; a context is null; there is an operation but no
    ///     namespace
    /// @throws KORVAException as `serialize`, also for name and namespace of the operation
    /// @throws ZELOutOfMemoryError no memory is left
    /// The stream's own exceptions pass through.
    void serializeEnvelope(const std::vector<ObjectContext*>& headerContexts,
                           const std::vector<ObjectContext*>& bodyContexts,
                           const char* operationName, const char* pOperationNamespace,
                           BRIMOutputStream& stream);

private:
    bool m_writeNullElements;
    bool m_writeXmlDeclaration;
    bool m_writeNamespaceDeclarations;
    bool m_replaceInvalidText;
};
