/// XML as a tree, read without the library.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace korva::test {

/// A name together with its namespace: `{namespace}local`, or the local name alone without one.
using ExpandedName = std::string;

struct XmlElement {
    ExpandedName name;
    std::map<ExpandedName, std::string> attributes;  ///< without declarations of namespaces
    std::string text;                                ///< UTF-8, of the element itself
    std::vector<XmlElement> children;

    /// The value of an attribute, null if there is none.
    const std::string* attribute(const ExpandedName& attributeName) const;
};

/// Reads a document that has no document type.
/// @throws std::runtime_error `xml` is not well-formed
XmlElement parseXml(const std::string& xml);

}  // namespace korva::test
