/// The events of a document in UTF-8, as every source of documents tells them to every reader.
#pragma once

#include <span>
#include <string_view>

namespace korva {

/// An attribute. Declarations of namespaces are none.
struct Attribute {
    std::string_view prefix;  ///< empty without one
    std::string_view localName;
    std::string_view uri;  ///< empty without a namespace
    std::string_view value;
};

/// A start tag.
struct Element {
    std::string_view prefix;  ///< empty without one
    /// NUL-terminated. A word of the schema has the word table's address.
    const char* localName;
    std::string_view uri;  ///< empty without a namespace
    std::span<const Attribute> attributes;
};

/// Is told of a document in its order, prefixes before the element that declares them.
///
/// The texts of an event live as long as the call, but for local names, prefixes and namespaces:
/// they live as long as the parse.
class DocumentReceiver {
public:
    DocumentReceiver() = default;
    DocumentReceiver(const DocumentReceiver&) = delete;
    DocumentReceiver& operator=(const DocumentReceiver&) = delete;

    virtual void startDocument() = 0;
    virtual void endDocument() = 0;
    /// Both texts are NUL-terminated. The default namespace has the empty prefix.
    virtual void startPrefix(const char* prefix, const char* uri) = 0;
    virtual void endPrefix(const char* prefix) = 0;
    virtual void startElement(const Element& element) = 0;
    /// A piece of text, which ends between two characters.
    virtual void text(std::string_view piece) = 0;
    /// The innermost open element ends.
    virtual void endElement() = 0;

protected:
    ~DocumentReceiver() = default;
};

}  // namespace korva
