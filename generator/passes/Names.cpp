#include "generator/passes/Passes.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>

namespace korva::schemac::passes {

using namespace model;

namespace {

constexpr std::string_view kClassPrefix = "KORVA";
constexpr std::string_view kEnumeratorPrefix = "eKORVA";
constexpr std::string_view kPortTypeSuffix = "PortType";

// Accessor stems whose getter every schema object, or every message, has already.
constexpr std::array<std::string_view, 7> kTakenStems = {
    "ChildObject",         "ChildObjectCount", "ChildObjectNames", "ChildType",
    "GeneratedObjectName", "ObjectType",       "PrivateData"};
constexpr std::array<std::string_view, 7> kTakenParamStems = {
    "ChildObject", "ChildObjectNames", "ChildType",     "HalyardHeader",
    "MessageName", "MessageType",      "ObjectRegistry"};

// Keywords and macros of the standard library that could be the name of a field.
constexpr std::array<std::string_view, 102> kNoMembers = {
    "EOF",       "NAN",          "NULL",          "alignas",
    "alignof",   "and",          "and_eq",        "asm",
    "assert",    "auto",         "bitand",        "bitor",
    "bool",      "break",        "case",          "catch",
    "char",      "char16_t",     "char32_t",      "char8_t",
    "class",     "co_await",     "co_return",     "co_yield",
    "compl",     "concept",      "const",         "const_cast",
    "consteval", "constexpr",    "constinit",     "continue",
    "decltype",  "default",      "delete",        "do",
    "double",    "dynamic_cast", "else",          "enum",
    "errno",     "explicit",     "export",        "extern",
    "false",     "float",        "for",           "friend",
    "goto",      "if",           "inline",        "int",
    "long",      "mutable",      "namespace",     "new",
    "noexcept",  "not",          "not_eq",        "nullptr",
    "operator",  "or",           "or_eq",         "private",
    "protected", "public",       "register",      "reinterpret_cast",
    "requires",  "return",       "short",         "signed",
    "sizeof",    "static",       "static_assert", "static_cast",
    "stderr",    "stdin",        "stdout",        "struct",
    "switch",    "template",     "this",          "thread_local",
    "throw",     "true",         "try",           "typedef",
    "typeid",    "typename",     "union",         "unix",
    "unsigned",  "using",        "virtual",       "void",
    "volatile",  "wchar_t",      "while",         "xor",
    "xor_eq",    "linux"};

constexpr std::string_view kIdentifier = "letters, digits and '_', a letter first";

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isIdentifier(std::string_view text) {
    return !text.empty() && isLetter(text.front()) &&
           std::all_of(text.begin(), text.end(),
                       [](char c) { return isLetter(c) || isDigit(c) || c == '_'; });
}

// `text` with '_' for each character that no identifier may contain.
std::string identifierOf(std::string_view text) {
    std::string out;
    for (const char c : text) {
        const bool continues = (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;  // of UTF-8
        if (!continues) out.push_back(isLetter(c) || isDigit(c) ? c : '_');
    }
    return out;
}

template <std::size_t N>
bool contains(const std::array<std::string_view, N>& list, std::string_view text) {
    return std::find(list.begin(), list.end(), text) != list.end();
}

class Names {
public:
    Names(Schema& schema, Diagnostics& diagnostics)
        : m_schema(schema), m_diagnostics(diagnostics) {}

    void run() {
        for (Type& type : m_schema.types)
            nameType(type);
        for (Type& type : m_schema.types) {
            nameFields(type);
            nameWords(type);
        }
        for (Message& message : m_schema.messages)
            nameMessage(message);
        pairMessages();
        for (PortType& portType : m_schema.portTypes)
            namePortType(portType);
    }

private:
    void takeClassName(const std::string& className, const Location& at, const std::string& owner) {
        if (m_schema.handWritten.contains(className)) {
            m_diagnostics.error(at, owner, "the class " + className + " is written by hand",
                                "another name");
            return;
        }
        const auto [found, isNew] = m_classNames.emplace(className, at);
        if (!isNew) {
            m_diagnostics.error(at, owner, "the class name " + className + " is taken",
                                "a name other than that of the item at " + place(found->second));
        }
    }

    void nameType(Type& type) {
        if (type.name.empty()) return;
        type.className = std::string(kClassPrefix) + raised(type.name);
        if (!isIdentifier(type.name)) {
            m_diagnostics.error(type.at, describe(type), "the name is no identifier", kIdentifier);
        } else if (m_schema.find(type.name) == &type) {
            takeClassName(type.className, type.at, describe(type));
        }
    }

    void nameFields(Type& type) {
        std::map<std::string, const Field*> stems;
        for (const Type* base = type.baseType(); base != nullptr; base = base->baseType()) {
            for (const Field& field : base->fields)
                stems.emplace(raised(field.name), &field);
        }
        for (Field& field : type.fields) {
            nameField(field, stems, kTakenStems,
                      item("element", field.name) + " of " + describe(type));
        }
    }

    template <std::size_t N>
    void nameField(Field& field, std::map<std::string, const Field*>& stems,
                   const std::array<std::string_view, N>& taken, const std::string& owner) {
        field.stem = raised(field.name);
        field.member = field.name;
        if (contains(kNoMembers, field.name)) field.member += "_";
        if (!isIdentifier(field.name)) {
            m_diagnostics.error(field.at, owner, "the name is no identifier", kIdentifier);
            return;
        }
        if (contains(taken, field.stem)) {
            m_diagnostics.error(field.at, owner,
                                "get" + field.stem + " means something else in every class",
                                "another name");
        }
        const auto [found, isNew] = stems.emplace(field.stem, &field);
        if (isNew) return;
        if (found->second->name == field.name) {
            m_diagnostics.error(field.at, owner, "the name is taken",
                                "a name other than that at " + place(found->second->at));
        } else {
            m_diagnostics.error(
                field.at, owner,
                "its accessors have the names of those of " + inQuotes(found->second->name),
                "a name that differs in more than its first letter's case from "
                "that at " +
                    place(found->second->at));
        }
    }

    void nameWords(Type& type) {
        std::map<std::string, const Word*> texts;
        std::map<std::string, unsigned> uses;
        for (Word& word : type.words) {
            const auto [found, isNew] = texts.emplace(word.text, &word);
            if (!isNew) {
                m_diagnostics.error(
                    word.at, item("enumeration", word.text) + " of " + describe(type),
                    "the word is taken", "a word other than that at " + place(found->second->at));
            }
            word.enumerator = std::string(kEnumeratorPrefix) + identifierOf(raised(word.text));
            // Words that differ only in what a name cannot show are told apart by a number.
            const unsigned use = ++uses[word.enumerator];
            if (use > 1) word.enumerator.append("_").append(std::to_string(use));
        }
    }

    void nameMessage(Message& message) {
        if (message.name.empty()) return;
        const std::string owner = item("message", message.name);
        if (m_schema.isHeader(message)) return;
        std::map<std::string, const Field*> stems;
        for (Field& param : message.params) {
            nameField(param, stems, kTakenParamStems, item("part", param.name) + " of " + owner);
        }
        message.isRequest = message.name.ends_with(kRequestSuffix);
        if (!message.isRequest && !message.name.ends_with(kReplySuffix)) {
            m_diagnostics.error(message.at, owner, "it is neither request nor reply",
                                "a name that ends in _Request or _Reply");
            return;
        }
        if (!isIdentifier(message.name)) {
            m_diagnostics.error(message.at, owner, "the name is no identifier", kIdentifier);
            return;
        }
        const auto [found, isNew] = m_messages.emplace(message.name, &message);
        if (!isNew) {
            m_diagnostics.error(
                message.at, owner, "the name is taken",
                "a name other than that of the message at " + place(found->second->at));
            return;
        }
        message.className = std::string(kClassPrefix) + raised(message.name);
        takeClassName(message.className, message.at, owner);
    }

    void pairMessages() {
        for (const auto& [name, message] : m_messages) {
            const std::string_view own = message->isRequest ? kRequestSuffix : kReplySuffix;
            const std::string_view other = message->isRequest ? kReplySuffix : kRequestSuffix;
            std::string partner = name.substr(0, name.size() - own.size());
            partner.append(other);
            if (m_messages.contains(partner)) continue;
            m_diagnostics.error(message->at, item("message", name), "it has no partner",
                                "a message " + inQuotes(partner));
        }
    }

    void namePortType(PortType& portType) {
        portType.className = std::string(kClassPrefix) + raised(portType.name);
        if (!portType.name.ends_with(kPortTypeSuffix)) portType.className += kPortTypeSuffix;
        if (!isIdentifier(portType.name)) {
            m_diagnostics.error(portType.at, item("portType", portType.name),
                                "the name is no identifier", kIdentifier);
            return;
        }
        takeClassName(portType.className, portType.at, item("portType", portType.name));
    }

    Schema& m_schema;
    Diagnostics& m_diagnostics;
    std::map<std::string, Location> m_classNames;
    std::map<std::string, const Message*> m_messages;
};

}  // namespace

void decideNames(Schema& schema, Diagnostics& diagnostics) {
    Names(schema, diagnostics).run();
}

}  // namespace korva::schemac::passes
