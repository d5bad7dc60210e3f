/// Reads an XML file into a tree that keeps the line of every element and the prefixes in scope.
#pragma once

#include "generator/Diagnostics.h"
#include "generator/model/Location.h"

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace korva::schemac {

struct XmlAttribute {
    std::string uri;
    std::string name;
    std::string value;
};

struct XmlElement {
    Location at;  ///< where the start tag ends
    std::string uri;
    std::string name;
    std::vector<XmlAttribute> attributes;
    std::vector<std::pair<std::string, std::string>> prefixes;  ///< declared on this element
    std::vector<std::unique_ptr<XmlElement>> children;
    std::string text;  ///< character data directly below, concatenated
    const XmlElement* parent = nullptr;

    bool is(std::string_view wantedUri, std::string_view wantedName) const {
        return name == wantedName && uri == wantedUri;
    }

    /// The attribute's value, or null when it is absent.
    const std::string* attribute(std::string_view attributeName,
                                 std::string_view attributeUri = {}) const;

    /// The namespace that a prefix stands for here, or null when it is not declared.
    const std::string* namespaceOf(std::string_view prefix) const;
};

/// Wraps one SAX2 parser. DTDs and external entities are never opened.
class XmlLoader {
public:
    XmlLoader();
    ~XmlLoader();
    XmlLoader(const XmlLoader&) = delete;
    XmlLoader& operator=(const XmlLoader&) = delete;

    /// The root of the file's tree; null after an error has been recorded.
    std::unique_ptr<XmlElement> load(const std::string& path, Diagnostics& diagnostics);

private:
    struct Parser;
    std::unique_ptr<Parser> m_parser;
};

/// Runs of white space become one blank, both ends are trimmed.
std::string collapsed(std::string_view text);

}  // namespace korva::schemac
