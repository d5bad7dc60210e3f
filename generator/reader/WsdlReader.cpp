#include "generator/reader/WsdlReader.h"

#include "generator/reader/Reading.h"
#include "generator/reader/SchemaReader.h"

#include <filesystem>

namespace korva::schemac {

using namespace reading;

namespace {

std::string documentationOf(const XmlElement& element) {
    for (const auto& child : element.children) {
        if (child->is(kWsdl, "documentation")) return paragraphs(child->text);
    }
    return {};
}

// A request-response operation whose input has no name takes that of the operation and "Request".
std::string inputNameOf(const XmlElement& input, const std::string& operation) {
    const std::string* name = input.attribute("name");
    return name != nullptr ? *name : operation + "Request";
}

}  // namespace

void WsdlReader::read(const std::string& path) {
    if (!m_seen.insert(std::filesystem::path(path).lexically_normal().string()).second) return;
    m_schema.files.push_back(path);
    const auto root = m_loader.load(path, m_diagnostics);
    if (root == nullptr) return;
    if (!root->is(kWsdl, "definitions")) {
        m_diagnostics.error(root->at, describe(*root), "the file is no WSDL document",
                            "wsdl:definitions");
        return;
    }
    readDefinitions(*root, path);
}

void WsdlReader::readDefinitions(const XmlElement& root, const std::string& path) {
    const std::string uri = required(root, "targetNamespace", m_diagnostics);
    for (const auto& child : root.children) {
        if (child->is(kWsdl, "import")) {
            readImport(*child, path);
        } else if (child->is(kWsdl, "types")) {
            readTypes(*child);
        } else if (child->is(kWsdl, "message")) {
            readMessage(*child, uri);
        } else if (child->is(kWsdl, "portType")) {
            readPortType(*child, uri);
        } else if (child->is(kWsdl, "binding")) {
            readBinding(*child);
        } else if (!child->is(kWsdl, "service") && !child->is(kWsdl, "documentation")) {
            refuse(*child,
                   "wsdl:import, wsdl:types, wsdl:message, wsdl:portType, wsdl:binding, "
                   "wsdl:service or wsdl:documentation",
                   m_diagnostics);
        }
    }
}

void WsdlReader::readImport(const XmlElement& import, const std::string& path) {
    const std::string location = required(import, "location", m_diagnostics);
    if (location.empty()) return;
    const std::string imported = besides(path, location);
    if (imported.ends_with(".xsd")) return;
    if (!std::filesystem::is_regular_file(imported)) {
        m_diagnostics.error(import.at, "import", "there is no file " + inQuotes(imported),
                            "a path relative to the file that imports it");
        return;
    }
    read(imported);
}

void WsdlReader::readTypes(const XmlElement& types) {
    for (const auto& schema : types.children) {
        if (schema->is(kWsdl, "documentation")) continue;
        if (!schema->is(kXsd, "schema")) {
            refuse(*schema, "xs:schema", m_diagnostics);
            continue;
        }
        for (const auto& child : schema->children) {
            if (!child->is(kXsd, "import") && !child->is(kXsd, "include") &&
                !child->is(kXsd, "annotation")) {
                refuse(*child, "xs:import or xs:include; types belong into the schema files",
                       m_diagnostics);
            }
        }
    }
}

void WsdlReader::readMessage(const XmlElement& element, const std::string& uri) {
    checkAttributes(element, {"name"}, m_diagnostics);
    model::Message& message = m_schema.messages.emplace_back();
    message.at = element.at;
    message.uri = uri;
    message.name = required(element, "name", m_diagnostics);
    message.documentation = documentationOf(element);
    for (const auto& child : element.children) {
        if (child->is(kWsdl, "documentation")) continue;
        if (!child->is(kWsdl, "part")) {
            refuse(*child, "wsdl:part or wsdl:documentation", m_diagnostics);
            continue;
        }
        checkAttributes(*child, {"name", "type", "element"}, m_diagnostics);
        model::Field param;
        param.at = child->at;
        param.name = required(*child, "name", m_diagnostics);
        if (const std::string* top = child->attribute("element")) {
            message.elements.push_back(qualified(*child, *top, m_diagnostics));
            continue;
        }
        param.documentation = documentationOf(*child);
        const std::string type = required(*child, "type", m_diagnostics);
        if (param.name.empty() || type.empty()) continue;
        param.reference = typeReference(*child, type, m_diagnostics);
        message.params.push_back(std::move(param));
    }
}

void WsdlReader::readPortType(const XmlElement& element, const std::string& uri) {
    checkAttributes(element, {"name"}, m_diagnostics);
    model::PortType portType;
    portType.at = element.at;
    portType.uri = uri;
    portType.name = required(element, "name", m_diagnostics);
    portType.documentation = documentationOf(element);
    for (const auto& child : element.children) {
        if (child->is(kWsdl, "operation")) {
            readOperation(*child, portType);
        } else if (!child->is(kWsdl, "documentation")) {
            refuse(*child, "wsdl:operation or wsdl:documentation", m_diagnostics);
        }
    }
    if (!portType.name.empty()) m_schema.portTypes.push_back(std::move(portType));
}

void WsdlReader::readOperation(const XmlElement& element, model::PortType& portType) {
    checkAttributes(element, {"name", "parameterOrder"}, m_diagnostics);
    model::Operation operation;
    operation.at = element.at;
    operation.name = required(element, "name", m_diagnostics);
    operation.documentation = documentationOf(element);
    const XmlElement* input = nullptr;
    const XmlElement* output = nullptr;
    for (const auto& child : element.children) {
        if (child->is(kWsdl, "documentation")) continue;
        if (child->is(kWsdl, "input") && input == nullptr) {
            input = child.get();
        } else if (child->is(kWsdl, "output") && output == nullptr && input != nullptr) {
            output = child.get();
        } else {
            refuse(*child, "one wsdl:input and then one wsdl:output", m_diagnostics);
        }
    }
    if (input == nullptr || output == nullptr) {
        m_diagnostics.error(element.at, describe(element), "it is incomplete",
                            "one wsdl:input and then one wsdl:output");
        return;
    }
    operation.inputName = inputNameOf(*input, operation.name);
    operation.input = qualified(*input, required(*input, "message", m_diagnostics), m_diagnostics);
    operation.output =
        qualified(*output, required(*output, "message", m_diagnostics), m_diagnostics);
    if (!operation.name.empty()) portType.operations.push_back(std::move(operation));
}

void WsdlReader::readBinding(const XmlElement& element) {
    checkAttributes(element, {"name", "type"}, m_diagnostics);
    model::Binding binding;
    binding.at = element.at;
    binding.name = required(element, "name", m_diagnostics);
    const std::string type = required(element, "type", m_diagnostics);
    binding.portType = qualified(element, type, m_diagnostics);
    for (const auto& child : element.children) {
        if (child->is(kWsdl, "operation")) {
            readBindingOperation(*child, binding);
        } else if (child->is(kWsdlSoap, "binding")) {
            const std::string* style = child->attribute("style");
            if (style == nullptr || *style != "rpc") {
                m_diagnostics.error(child->at, describe(*child), "its style is not rpc",
                                    "style=\"rpc\"");
            }
        } else if (!child->is(kWsdl, "documentation")) {
            refuse(*child, "soap:binding, wsdl:operation or wsdl:documentation", m_diagnostics);
        }
    }
    if (!type.empty()) m_schema.bindings.push_back(std::move(binding));
}

void WsdlReader::readBindingOperation(const XmlElement& element, model::Binding& binding) {
    checkAttributes(element, {"name"}, m_diagnostics);
    model::BindingOperation operation;
    operation.at = element.at;
    operation.name = required(element, "name", m_diagnostics);
    operation.inputName = operation.name + "Request";
    const XmlElement* input = nullptr;
    bool hasAction = false;
    for (const auto& child : element.children) {
        if (child->is(kWsdlSoap, "operation")) {
            operation.action = required(*child, "soapAction", m_diagnostics);
            hasAction = true;
        } else if (child->is(kWsdl, "input") && input == nullptr) {
            input = child.get();
            operation.inputName = inputNameOf(*child, operation.name);
            readBindingInput(*child, operation);
        } else if (!child->is(kWsdl, "output") && !child->is(kWsdl, "documentation")) {
            refuse(*child, "soap:operation, wsdl:input or wsdl:output", m_diagnostics);
        }
    }
    if (!hasAction || input == nullptr) {
        m_diagnostics.error(element.at, describe(element), "it is incomplete",
                            "a soap:operation and a wsdl:input");
        return;
    }
    if (!operation.name.empty()) binding.operations.push_back(std::move(operation));
}

void WsdlReader::readBindingInput(const XmlElement& input, model::BindingOperation& operation) {
    bool hasBody = false;
    for (const auto& child : input.children) {
        if (child->is(kWsdlSoap, "header")) {
            if (const std::string* message = child->attribute("message")) {
                m_schema.headerMessages.push_back(qualified(*child, *message, m_diagnostics));
            }
        } else if (child->is(kWsdlSoap, "body") && !hasBody) {
            hasBody = true;
            operation.bodyNamespace = required(*child, "namespace", m_diagnostics);
            const std::string* use = child->attribute("use");
            if (use == nullptr || *use != "encoded") {
                m_diagnostics.error(child->at, describe(*child), "its use is not encoded",
                                    "use=\"encoded\"");
            }
        } else if (!child->is(kWsdl, "documentation")) {
            refuse(*child, "one soap:body, and soap:header", m_diagnostics);
        }
    }
    if (!hasBody) {
        m_diagnostics.error(input.at, describe(input), "it has no soap:body",
                            "a soap:body that tells the namespace of the operation");
    }
}

}  // namespace korva::schemac
