#include "generator/passes/Passes.h"

#include <algorithm>
#include <map>

namespace korva::schemac::passes {

using namespace model;

namespace {

// 0 to 11 are plain types, 12 to 14 the fault classes that are written by hand.
constexpr std::int32_t kLastReserved = 14;
// 1 and 2 are the messages without name and parameters.
constexpr std::int32_t kLastReservedMessage = 2;

// Texts that share one space of identities, with the place of each text's first use.
class Space {
public:
    Space(std::int32_t lastReserved, Diagnostics& diagnostics)
        : m_lastReserved(lastReserved), m_diagnostics(diagnostics) {}

    std::int32_t take(const std::string& text, const Location& at, const std::string& owner) {
        const std::int32_t identity = identityOf(text);
        const auto [found, isNew] = m_used.emplace(identity, Use{text, at});
        if (!isNew && found->second.text != text) {
            m_diagnostics.error(
                at, owner,
                inQuotes(text) + " and \"" + found->second.text + "\" have one CRC-32, " +
                    hexOf(identity),
                "a word whose CRC-32 differs from that at " + place(found->second.at));
        }
        if (isNew && identity >= 0 && identity <= m_lastReserved) {
            m_diagnostics.error(at, owner, "the CRC-32 of \"" + text + "\" is " + hexOf(identity),
                                "a word whose CRC-32 is not one of the reserved numbers 0 to " +
                                    std::to_string(m_lastReserved));
        }
        return identity;
    }

    std::vector<TableWord> table() const {
        std::vector<TableWord> out;
        out.reserve(m_used.size());
        for (const auto& [identity, use] : m_used)
            out.push_back({identity, use.text});
        return out;
    }

private:
    struct Use {
        std::string text;
        Location at;
    };

    std::int32_t m_lastReserved;
    Diagnostics& m_diagnostics;
    std::map<std::int32_t, Use> m_used;
};

std::int32_t objectTypeOf(const TypeReference& reference) {
    return reference.type != nullptr ? reference.type->identity
                                     : static_cast<std::int32_t>(reference.plain);
}

}  // namespace

void decideIdentities(Schema& schema, Diagnostics& diagnostics) {
    Space words(kLastReserved, diagnostics);
    for (Type& type : schema.types) {
        if (!type.name.empty()) type.identity = words.take(type.name, type.at, describe(type));
    }
    for (Type& type : schema.types) {
        for (Field& field : type.fields) {
            field.identity = words.take(field.name, field.at,
                                        item("element", field.name) + " of " + describe(type));
            field.objectType = objectTypeOf(field.reference);
        }
        for (Word& word : type.words) {
            word.identity = words.take(word.text, word.at,
                                       item("enumeration", word.text) + " of " + describe(type));
        }
        if (type.form == TypeForm::Array) type.elementObjectType = objectTypeOf(type.element);
    }
    for (Field& element : schema.elements) {
        element.identity = words.take(element.name, element.at, item("element", element.name));
        element.objectType = objectTypeOf(element.reference);
    }
    Space messages(kLastReservedMessage, diagnostics);
    for (Message& message : schema.messages) {
        for (Field& param : message.params) {
            param.identity =
                words.take(param.name, param.at,
                           item("part", param.name) + " of " + item("message", message.name));
            param.objectType = objectTypeOf(param.reference);
        }
        if (!message.className.empty()) {
            message.identity =
                messages.take(message.name, message.at, item("message", message.name));
        }
    }
    schema.words = words.table();
}

}  // namespace korva::schemac::passes
