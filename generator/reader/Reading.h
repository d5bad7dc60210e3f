/// What the XSD reader and the WSDL reader share: namespaces, names in attributes, annotations.
#pragma once

#include "generator/Diagnostics.h"
#include "generator/model/Schema.h"
#include "generator/reader/XmlLoader.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace korva::schemac::reading {

inline constexpr std::string_view kXsd = "http://www.w3.org/2001/XMLSchema";
inline constexpr std::string_view kWsdl = "http://schemas.xmlsoap.org/wsdl/";
inline constexpr std::string_view kWsdlSoap = "http://schemas.xmlsoap.org/wsdl/soap/";
inline constexpr std::string_view kSoapEncoding = "http://schemas.xmlsoap.org/soap/encoding/";

/// `element "active" of complexType "schedule"`: the element, with its name if it has one, and the
/// nearest element above it that has a name (the root left out).
std::string describe(const XmlElement& element);

/// Records an error for each attribute without a namespace that is not in `allowed`.
void checkAttributes(const XmlElement& element, std::initializer_list<std::string_view> allowed,
                     Diagnostics& diagnostics);

/// Records that `element` has no place where it stands.
void refuse(const XmlElement& element, std::string_view expected, Diagnostics& diagnostics);

/// The value of a required attribute; records an error and returns an empty text without it.
std::string required(const XmlElement& element, std::string_view name, Diagnostics& diagnostics);

/// The value of an attribute that is "true" or "false"; `fallback` when it is absent.
bool flag(const XmlElement& element, std::string_view name, bool fallback,
          Diagnostics& diagnostics);

/// Splits "prefix:local" and looks the prefix up; a prefix that is not declared is an error.
model::QName qualified(const XmlElement& element, const std::string& text,
                       Diagnostics& diagnostics);
model::TypeReference typeReference(const XmlElement& element, const std::string& text,
                                   Diagnostics& diagnostics);

/// Paragraphs, each collapsed to one line, with an empty line between.
std::string paragraphs(std::string_view text);

struct Annotation {
    std::string documentation;
    bool supplied = false;
    bool open = false;  ///< "open" without a number
    int openCount = 0;  ///< "open N"
};

/// What an annotation may say beside its documentation.
enum class Notes { None, Supplied, Open, OpenCount };

/// Adds the content of an xs:annotation to `into`.
void readAnnotation(const XmlElement& annotation, Notes allowed, Annotation& into,
                    Diagnostics& diagnostics);

/// The annotation among the children of `element`, if any.
Annotation annotationOf(const XmlElement& element, Notes allowed, Diagnostics& diagnostics);

}  // namespace korva::schemac::reading
