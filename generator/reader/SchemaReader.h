/// Reads XML Schema files into the model and follows their includes.
#pragma once

#include "generator/Diagnostics.h"
#include "generator/model/Schema.h"
#include "generator/reader/XmlLoader.h"

#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace korva::schemac {

class SchemaReader {
public:
    /// All three arguments must outlive the reader.
    SchemaReader(XmlLoader& loader, model::Schema& schema, Diagnostics& diagnostics)
        : m_loader(loader), m_schema(schema), m_diagnostics(diagnostics) {}

    /// Reads the file and all that it includes, each file once.
    void read(const std::string& path);

private:
    void readSchema(const XmlElement& root, const std::string& path);
    void readElementForm(const XmlElement& root);
    void readTopElement(const XmlElement& element);
    void readInclude(const XmlElement& include, const std::string& path);
    void readComplexType(const XmlElement& element);
    void readComplexContent(const XmlElement& content, model::Type& type);
    void readArray(const XmlElement& restriction, model::Type& type);
    void readItems(const XmlElement& sequence, const model::Type& type);
    void readSequence(const XmlElement& sequence, model::Type& type);
    void readElement(const XmlElement& element, model::Type& type);
    void readSimpleType(const XmlElement& element);
    void readFacets(const XmlElement& restriction, model::Type& type);

    /// Whether the files say what the elements on the wire look like; older ones do not.
    bool tellsWire() const { return m_tellsWire.value_or(false); }

    // Each records an error where an element says another wire form than the one written.
    void checkForm(const XmlElement& element, std::string_view wire);
    void checkOccurrence(const XmlElement& element, const std::string& most, std::string_view why);
    void checkMayBeMissing(const XmlElement& element);

    XmlLoader& m_loader;
    model::Schema& m_schema;
    Diagnostics& m_diagnostics;
    std::set<std::string> m_seen;
    std::optional<bool> m_tellsWire;  ///< as the first file does, and all others must
};

/// `relative` as seen from the file `from`.
std::string besides(const std::string& from, const std::string& relative);

}  // namespace korva::schemac
