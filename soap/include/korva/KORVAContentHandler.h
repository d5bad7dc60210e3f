/// What the readers of envelopes and objects have in common.
#pragma once

#include <korva/KORVAExport.h>

#include <xercesc/sax2/DefaultHandler.hpp>

#include <cstddef>

class I18NConverter;
class KORVANamespaceMapping;

/// A SAX2 handler that turns the parser's UTF-16 into the object model's UTF-8.
class KORVA_EXPORT KORVAContentHandler : public xercesc::DefaultHandler {
public:
    ~KORVAContentHandler() override;
    KORVAContentHandler(const KORVAContentHandler&) = delete;
    KORVAContentHandler& operator=(const KORVAContentHandler&) = delete;

    /// How many attributes an element may have, declarations of namespaces included: 256 at first.
    /// More end in KORVAException 0xEA4F0001.
    void setMaximumAttributes(std::size_t attributes) { m_maximumAttributes = attributes; }

    /// How many declarations of namespaces may be in scope at one place: 1,000 at first. More end
    /// in KORVAException 0xEA4F0001.
    void setMaximumDeclarations(std::size_t declarations) { m_maximumDeclarations = declarations; }

protected:
    /// `converter` must outlive the handler; handlers of one parse share it.
    explicit KORVAContentHandler(I18NConverter& converter);

    I18NConverter& converter() const { return *m_converter; }

    /// Writes `text` and a NUL to `buffer`; false if `size` bytes do not hold both.
    static bool convert(const XMLCh* text, char* buffer, std::size_t size);

    /// `text` in a new array, which the caller frees with `delete[]`; null stays null.
    /// @throws ZELOutOfMemoryError no memory is left
    static char* convert(const XMLCh* text);

    /// @throws KORVAException 0xEA4F0001: there are more than the limit allows
    void checkAttributes(const xercesc::Attributes& attributes) const;

    /// Opens a declaration in `mapping`; a null `uri` stays null.
    /// @throws KORVAException 0xEA4F0001: there are more than the limit allows
    /// @throws ZELOutOfMemoryError no memory is left; nothing is opened
    void addPrefix(KORVANamespaceMapping& mapping, const XMLCh* prefix, const XMLCh* uri) const;

    /// Closes the newest declaration of the prefix in `mapping`.
    /// @throws ZELOutOfMemoryError no memory is left
    static void removePrefix(KORVANamespaceMapping& mapping, const XMLCh* prefix);

private:
    I18NConverter* m_converter;
    std::size_t m_maximumAttributes;
    std::size_t m_maximumDeclarations;
};
