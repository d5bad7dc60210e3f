#include "generator/passes/Passes.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

namespace korva::schemac::passes {

using namespace model;

namespace {

using Name = std::pair<std::string, std::string>;

class Joiner {
public:
    Joiner(Schema& schema, Diagnostics& diagnostics)
        : m_schema(schema), m_diagnostics(diagnostics) {}

    void run() {
        for (const Message& message : m_schema.messages) {
            if (!message.className.empty()) {
                m_messages.emplace(Name(message.uri, message.name), &message);
            }
        }
        for (PortType& portType : m_schema.portTypes) {
            const auto [found, isNew] =
                m_portTypes.emplace(Name(portType.uri, portType.name), &portType);
            if (!isNew) {
                m_diagnostics.error(
                    portType.at, item("portType", portType.name), "the name is taken",
                    "a name other than that of the port type at " + place(found->second->at));
            }
            resolveMessages(portType);
        }
        for (const Binding& binding : m_schema.bindings)
            join(binding);
        for (PortType& portType : m_schema.portTypes) {
            if (!m_bound.contains(&portType)) {
                m_diagnostics.error(portType.at, item("portType", portType.name),
                                    "it has no binding", "a wsdl:binding of this port type");
            }
            collectParams(portType);
        }
    }

private:
    void resolveMessages(PortType& portType) {
        if (portType.operations.empty()) {
            m_diagnostics.error(portType.at, item("portType", portType.name), "it has no operation",
                                "at least one wsdl:operation");
        }
        std::map<Name, const Operation*> signatures;
        for (Operation& operation : portType.operations) {
            const std::string owner =
                item("operation", operation.name) + " of " + item("portType", portType.name);
            const auto [found, isNew] =
                signatures.emplace(Name(operation.name, operation.inputName), &operation);
            if (!isNew) {
                m_diagnostics.error(
                    operation.at, owner, "its signature \"" + operation.inputName + "\" is taken",
                    "a wsdl:input whose name differs from that at " + place(found->second->at));
            }
            operation.request = message(operation.input, kRequestSuffix, owner);
            operation.reply = message(operation.output, kReplySuffix, owner);
            if (operation.request == nullptr || operation.reply == nullptr) continue;
            if (stemOf(*operation.request, kRequestSuffix) !=
                stemOf(*operation.reply, kReplySuffix)) {
                m_diagnostics.error(operation.output.at, owner,
                                    inQuotes(operation.reply->name) + " does not answer " +
                                        inQuotes(operation.request->name),
                                    "the request and the reply of one name");
            }
        }
    }

    const Message* message(const QName& name, std::string_view suffix, const std::string& owner) {
        if (name.uri.empty()) return nullptr;  // the reader has told what is wrong
        const auto found = m_messages.find(Name(name.uri, name.name));
        if (found == m_messages.end()) {
            m_diagnostics.error(name.at, owner, "unknown message " + inQuotes(name.text),
                                "a wsdl:message of the files read");
            return nullptr;
        }
        if (!name.name.ends_with(suffix)) {
            m_diagnostics.error(name.at, owner, inQuotes(name.text) + " stands on the wrong side",
                                std::string("a message whose name ends in ").append(suffix));
            return nullptr;
        }
        return found->second;
    }

    static std::string_view stemOf(const Message& message, std::string_view suffix) {
        return std::string_view(message.name).substr(0, message.name.size() - suffix.size());
    }

    void join(const Binding& binding) {
        const std::string owner = item("binding", binding.name);
        if (binding.portType.uri.empty()) return;
        const auto found = m_portTypes.find(Name(binding.portType.uri, binding.portType.name));
        if (found == m_portTypes.end()) {
            m_diagnostics.error(binding.at, owner,
                                "unknown port type " + inQuotes(binding.portType.text),
                                "a wsdl:portType of the files read");
            return;
        }
        PortType& portType = *found->second;
        if (!m_bound.insert(&portType).second) {
            m_diagnostics.error(binding.at, owner,
                                inQuotes(portType.name) + " has a binding already",
                                "one binding for each port type");
            return;
        }
        std::map<Name, const BindingOperation*> rows;
        for (const BindingOperation& row : binding.operations) {
            const std::string rowOwner = item("operation", row.name) + " of " + owner;
            rows.emplace(Name(row.name, row.inputName), &row);
            if (portType.boundNamespace.empty()) portType.boundNamespace = row.bodyNamespace;
            if (!row.bodyNamespace.empty() && row.bodyNamespace != portType.boundNamespace) {
                m_diagnostics.error(
                    row.at, rowOwner, "the namespace of its body is " + inQuotes(row.bodyNamespace),
                    inQuotes(portType.boundNamespace) + ", as in the operations before");
            }
            const bool known = std::any_of(portType.operations.begin(), portType.operations.end(),
                                           [&](const Operation& operation) {
                                               return operation.name == row.name &&
                                                      operation.inputName == row.inputName;
                                           });
            if (!known) {
                m_diagnostics.error(row.at, rowOwner,
                                    inQuotes(portType.name) + " has no operation with the input " +
                                        inQuotes(row.inputName),
                                    "the names of an operation of the port type and of its input");
            }
        }
        for (Operation& operation : portType.operations) {
            const auto row = rows.find(Name(operation.name, operation.inputName));
            if (row == rows.end()) {
                m_diagnostics.error(
                    operation.at,
                    item("operation", operation.name) + " of " + item("portType", portType.name),
                    "the binding \"" + binding.name + "\" leaves it out",
                    "a wsdl:operation of these names in the binding");
            } else {
                operation.action = row->second->action;
            }
        }
    }

    static void collectParams(PortType& portType) {
        std::set<std::string> seen;
        for (const Operation& operation : portType.operations) {
            if (operation.request == nullptr) continue;
            for (const Field& param : operation.request->params) {
                std::string key = operation.name + "-" + param.name;
                if (seen.insert(key).second) portType.params.push_back({std::move(key), &param});
            }
        }
    }

    Schema& m_schema;
    Diagnostics& m_diagnostics;
    std::map<Name, const Message*> m_messages;
    std::map<Name, PortType*> m_portTypes;
    std::set<const PortType*> m_bound;
};

}  // namespace

void joinOperations(Schema& schema, Diagnostics& diagnostics) {
    Joiner(schema, diagnostics).run();
}

}  // namespace korva::schemac::passes
