#include "generator/passes/Passes.h"
#include "generator/reader/Reading.h"

#include <algorithm>
#include <iterator>
#include <set>

namespace korva::schemac::passes {

using namespace model;

namespace {

// "xs:string, xs:int or xs:QName", all of them.
std::string plainTypes() {
    std::string out;
    for (const types::PlainRow& row : types::plainRows) {
        if (&row != types::plainRows) out += &row == std::end(types::plainRows) - 1 ? " or " : ", ";
        out += row.text;
    }
    return out;
}

class Resolver {
public:
    Resolver(Schema& schema, Diagnostics& diagnostics)
        : m_schema(schema), m_diagnostics(diagnostics) {}

    void resolve(TypeReference& reference, const std::string& owner) {
        if (reference.uri.empty()) return;  // the reader has told what is wrong
        if (reference.uri == reading::kXsd) {
            if (const types::PlainRow* const row = types::findPlain(reference.name)) {
                reference.plain = row->type;
            } else {
                m_diagnostics.error(reference.at, owner,
                                    "unsupported plain type " + inQuotes(reference.text),
                                    "one of " + plainTypes());
            }
            return;
        }
        if (reference.uri == m_schema.uri) reference.type = m_schema.find(reference.name);
        if (reference.type == nullptr) {
            m_diagnostics.error(reference.at, owner, "unknown type " + inQuotes(reference.text),
                                "a type of the schema, or one of " + plainTypes());
        }
    }

    void resolveBase(Type& type) {
        TypeReference& base = *type.base;
        if (base.uri == reading::kXsd) {
            m_diagnostics.error(base.at, describe(type),
                                "its base \"" + base.text + "\" is a plain type",
                                "a complexType with fields");
            return;
        }
        resolve(base, describe(type));
        if (base.type != nullptr && base.type->form != TypeForm::Record) {
            m_diagnostics.error(base.at, describe(type),
                                "its base \"" + base.text + "\" is " + formOf(*base.type),
                                "a complexType with fields");
            base.type = nullptr;
        }
    }

private:
    static std::string formOf(const Type& type) {
        switch (type.form) {
            case TypeForm::Array: return "an array";
            case TypeForm::Enumeration: return "an enumeration";
            case TypeForm::RestrictedString: return "a restricted string";
            case TypeForm::Record: break;
        }
        return "a class";
    }

    Schema& m_schema;
    Diagnostics& m_diagnostics;
};

}  // namespace

void resolveReferences(Schema& schema, Diagnostics& diagnostics) {
    for (Type& type : schema.types) {
        if (type.name.empty()) continue;
        const auto [found, isNew] = schema.typesByName.emplace(type.name, &type);
        if (!isNew) {
            diagnostics.error(type.at, describe(type), "the name is taken",
                              "a name other than that of the type at " + place(found->second->at));
        }
    }
    Resolver resolver(schema, diagnostics);
    for (Type& type : schema.types) {
        if (type.base) resolver.resolveBase(type);
        for (Field& field : type.fields) {
            resolver.resolve(field.reference,
                             item("element", field.name) + " of " + describe(type));
        }
        if (type.form == TypeForm::Array) resolver.resolve(type.element, describe(type));
    }
    for (Field& element : schema.elements) {
        resolver.resolve(element.reference, item("element", element.name));
    }
    for (Message& message : schema.messages) {
        for (Field& param : message.params) {
            resolver.resolve(param.reference,
                             item("part", param.name) + " of " + item("message", message.name));
        }
    }
}

void checkHeaders(Schema& schema, Diagnostics& diagnostics) {
    std::set<const Field*> used;
    for (const Message& message : schema.messages) {
        for (const QName& name : message.elements) {
            const std::string owner = item("message", message.name);
            if (!schema.isHeader(message)) {
                diagnostics.error(name.at, owner,
                                  "its part names the element " + inQuotes(name.text),
                                  "the attribute \"type\"; only a soap:header has elements");
                continue;
            }
            const auto found = std::find_if(
                schema.elements.begin(), schema.elements.end(), [&](const Field& element) {
                    return name.uri == schema.uri && element.name == name.name;
                });
            if (found != schema.elements.end()) {
                used.insert(&*found);
            } else if (!name.uri.empty()) {
                diagnostics.error(name.at, owner, "unknown element " + inQuotes(name.text),
                                  "an xs:element of the top level of the schema");
            }
        }
    }
    for (const Field& element : schema.elements) {
        if (used.contains(&element)) continue;
        diagnostics.error(element.at, item("element", element.name), "no header is made of it",
                          "a part of a soap:header's message that names it, or no such element");
    }
}

void findCycles(Schema& schema, Diagnostics& diagnostics) {
    for (Type& type : schema.types) {
        std::string chain = type.name;
        const Type* step = type.baseType();
        // The bound ends the walk of a class that only leads into a ring of others.
        for (std::size_t i = 0; step != nullptr && step != &type && i < schema.types.size(); ++i) {
            chain.append(" -> ").append(step->name);
            step = step->baseType();
        }
        if (step != &type) continue;
        chain.append(" -> ").append(type.name);
        diagnostics.error(type.base->at, describe(type), "it is its own base (" + chain + ")",
                          "a chain of bases that ends");
        type.base->type = nullptr;
    }
    for (Type& type : schema.types) {
        type.depth = 0;
        type.inheritedFields = 0;
        for (const Type* base = type.baseType(); base != nullptr; base = base->baseType()) {
            ++type.depth;
            type.inheritedFields += base->fields.size();
        }
    }
}

}  // namespace korva::schemac::passes
