/// Reads WSDL 1.1 files into the model: messages, port types and their SOAP bindings.
#pragma once

#include "generator/Diagnostics.h"
#include "generator/model/Schema.h"
#include "generator/reader/XmlLoader.h"

#include <set>
#include <string>

namespace korva::schemac {

class WsdlReader {
public:
    /// All three arguments must outlive the reader.
    WsdlReader(XmlLoader& loader, model::Schema& schema, Diagnostics& diagnostics)
        : m_loader(loader), m_schema(schema), m_diagnostics(diagnostics) {}

    /// Reads the file and the WSDL files that it imports, each file once. Types are not looked
    /// for here: wsdl:types may only import the schema that has been read before.
    void read(const std::string& path);

private:
    void readDefinitions(const XmlElement& root, const std::string& path);
    void readImport(const XmlElement& import, const std::string& path);
    void readTypes(const XmlElement& types);
    void readMessage(const XmlElement& element, const std::string& uri);
    void readPortType(const XmlElement& element, const std::string& uri);
    void readOperation(const XmlElement& element, model::PortType& portType);
    void readBinding(const XmlElement& element);
    void readBindingOperation(const XmlElement& element, model::Binding& binding);
    void readBindingInput(const XmlElement& input, model::BindingOperation& operation);

    XmlLoader& m_loader;
    model::Schema& m_schema;
    Diagnostics& m_diagnostics;
    std::set<std::string> m_seen;
};

}  // namespace korva::schemac
