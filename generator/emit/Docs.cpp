#include "generator/emit/Emit.h"
#include "generator/emit/Printer.h"
#include "generator/emit/Text.h"

#include <algorithm>
#include <initializer_list>
#include <map>
#include <set>
#include <string_view>

namespace korva::schemac::emit {

using namespace model;

namespace {

// Text for a cell of a table: one line, and nothing that Markdown would take for markup.
std::string cell(std::string_view text) {
    std::string out;
    for (const char c : text) {
        if (c == '\n') {
            if (!out.ends_with(' ')) out.push_back(' ');
            continue;
        }
        if (c == '|' || c == '<' || c == '*' || c == '_' || c == '`' || c == '\\') {
            out.push_back('\\');
        }
        out.push_back(c);
    }
    return out;
}

std::string code(std::string_view text) {
    std::string out("`");
    out.append(text);
    return out.append("`");
}

// "#schedule", where a heading's own words stand in lower case.
std::string anchorOf(std::string_view heading) {
    std::string out("#");
    for (const char c : heading)
        out.push_back(c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c);
    return out;
}

std::string concatenated(std::initializer_list<std::string_view> parts) {
    std::string out;
    for (const std::string_view part : parts)
        out += part;
    return out;
}

// Classes and enumerations have a heading to go to; the others stand in tables.
std::string linkTo(const Type& type) {
    if (type.kind != TypeKind::Class && type.kind != TypeKind::Enum) return code(type.name);
    return concatenated({"[", code(type.name), "](", anchorOf(type.name), ")"});
}

// A type as the schema names it, without the prefix of its own namespace.
std::string typeName(const TypeReference& reference) {
    return reference.type != nullptr ? linkTo(*reference.type) : code(reference.text);
}

std::string listOf(const std::vector<std::string>& items) {
    std::string out;
    for (const std::string& item : items)
        out.append(out.empty() ? "" : ", ").append(item);
    return out;
}

std::string counted(std::size_t count, std::string_view one, std::string_view many) {
    return std::to_string(count).append(" ").append(count == 1 ? one : many);
}

std::string meaning(const std::string& documentation, bool supplied) {
    return joined(cell(sentence(documentation)), supplied ? "*Supplied.*" : "");
}

std::string openWords(const Type& type) {
    if (type.openWords == kUnknownCount) return "an unknown number of words";
    return counted(static_cast<std::size_t>(type.openWords), "word", "words");
}

void printParagraph(Printer& printer, const std::string& documentation) {
    if (!documentation.empty()) {
        printer.print("\n\n$text$\n", {{"text", sentence(documentation)}});
    }
}

// Whether a column for the meaning would hold anything.
template <class Item>
bool anyMeaning(const std::vector<Item>& items) {
    return std::any_of(items.begin(), items.end(), [](const Item& item) {
        return item.supplied || !item.documentation.empty();
    });
}

void printFields(Printer& printer, const Type& type) {
    if (type.fields.empty()) return;
    const bool hasMeaning = anyMeaning(type.fields);
    printer.print(hasMeaning ? "\n\n| field | type | meaning |\n|---|---|---|\n"
                             : "\n\n| field | type |\n|---|---|\n");
    for (const Field& field : type.fields) {
        const std::string row =
            concatenated({"| ", code(field.name), " | ", typeName(field.reference), " |"});
        printer.print(
            "$row$$meaning$\n",
            {{"row", row},
             {"meaning",
              hasMeaning ? concatenated({" ", meaning(field.documentation, field.supplied), " |"})
                         : ""}});
    }
}

std::map<const Type*, std::vector<std::string>> derivedClasses(const Schema& schema) {
    std::map<const Type*, std::vector<std::string>> out;
    for (const Type* type : schema.byName)
        if (type->kind == TypeKind::Class && type->baseType() != nullptr)
            out[type->baseType()].push_back(linkTo(*type));
    return out;
}

// "extends `uiClass` with its 29 fields"
std::string baseOf(const Type& type) {
    if (!type.base) return {};
    return ", extends " + typeName(*type.base) + " with its " +
           counted(type.inheritedFields, "field", "fields");
}

void printClass(Printer& printer, const Type& type, const std::vector<std::string>& derived) {
    printer.print("\n\n### $name$\n\n$class$$abstract$$base$\n",
                  {{"name", type.name},
                   {"class", code(type.className)},
                   {"abstract", type.isAbstract ? ", abstract" : ""},
                   {"base", baseOf(type)}});
    printParagraph(printer, type.documentation);
    if (!derived.empty()) printer.print("\n\nDerived: $list$.\n", {{"list", listOf(derived)}});
    if (type.openFields) {
        printer.print("\n\n*Open: $which$ fields are not known.*\n",
                      {{"which", type.fields.empty() ? "its" : "further"}});
    } else if (type.fields.empty()) {
        printer.print("\n\nNo fields of its own.\n");
    }
    printFields(printer, type);
}

// The abstract base of the properties; null when there are none.
const Type* propertyBase(const Schema& schema) {
    return schema.properties.empty() ? nullptr : schema.properties.front()->baseType();
}

std::vector<const Type*> classesOf(const Schema& schema) {
    std::vector<const Type*> out;
    for (const Type* type : schema.byName)
        if (type->kind == TypeKind::Class && type != propertyBase(schema)) out.push_back(type);
    return out;
}

void printClasses(Printer& printer, const Schema& schema) {
    const auto derived = derivedClasses(schema);
    printer.print("\n\n## Classes\n");
    for (const Type* type : classesOf(schema)) {
        const auto found = derived.find(type);
        printClass(printer, *type,
                   found == derived.end() ? std::vector<std::string>{} : found->second);
    }
}

void printProperties(Printer& printer, const Schema& schema) {
    printer.print("\n\n## Properties\n");
    if (const Type* base = propertyBase(schema)) {
        printer.print("\n\nEach has one field, `value`, of the type below.\n");
        printClass(printer, *base, {});
    }
    printer.print("\n\n| property | value |\n|---|---|\n");
    for (const Type* type : schema.properties) {
        printer.print(
            "| $name$ | $value$ |\n",
            {{"name", code(type->name)}, {"value", typeName(type->fields.front().reference)}});
    }
}

void printArrays(Printer& printer, const std::vector<const Type*>& arrays) {
    printer.print("\n\n## Arrays\n\n| array | element |\n|---|---|\n");
    for (const Type* type : arrays) {
        printer.print("| $name$ | $element$ |\n",
                      {{"name", code(type->name)}, {"element", typeName(type->element)}});
    }
}

void printWords(Printer& printer, const std::vector<Word>& words) {
    if (!anyMeaning(words)) {
        std::vector<std::string> texts;
        texts.reserve(words.size());
        for (const Word& word : words)
            texts.push_back(code(word.text));
        printer.print("\n\n$words$\n", {{"words", listOf(texts)}});
        return;
    }
    printer.print("\n\n| word | meaning |\n|---|---|\n");
    for (const Word& word : words) {
        printer.print(
            "| $word$ | $meaning$ |\n",
            {{"word", code(word.text)}, {"meaning", meaning(word.documentation, word.supplied)}});
    }
}

void printEnums(Printer& printer, const std::vector<const Type*>& enums) {
    printer.print("\n\n## Enumerations\n");
    for (const Type* type : enums) {
        printer.print("\n\n### $name$\n\n$class$, $count$\n",
                      {{"name", type->name},
                       {"class", code(type->className)},
                       {"count", counted(type->words.size(), "word", "words")}});
        printParagraph(printer, type->documentation);
        if (type->openWords != 0) {
            printer.print("\n\n*Open: $words$ beside these.*\n", {{"words", openWords(*type)}});
        }
        if (!type->words.empty()) printWords(printer, type->words);
    }
}

void printRestrictedStrings(Printer& printer, const std::vector<const Type*>& strings) {
    printer.print("\n\n## Restricted strings\n\n| type | meaning |\n|---|---|\n");
    for (const Type* type : strings) {
        printer.print(
            "| $name$ | $meaning$ |\n",
            {{"name", code(type->name)}, {"meaning", meaning(type->documentation, false)}});
    }
}

std::string orNothing(const Printer& printer) {
    return printer.text().empty() ? "Nothing.\n" : printer.text();
}

// What was chosen rather than documented.
void printSupplied(Printer& printer, const Schema& schema) {
    Printer supplied;
    for (const Type* type : schema.byName) {
        std::vector<std::string> names;
        for (const Field& field : type->fields) {
            if (field.supplied) names.push_back(code(field.name));
        }
        for (const Word& word : type->words) {
            if (word.supplied) names.push_back(code(word.text));
        }
        if (names.empty()) continue;
        supplied.print("- $name$: $list$\n", {{"name", linkTo(*type)}, {"list", listOf(names)}});
    }
    printer.print(R"(

## Supplied

Fields and words that are not documented, and were chosen from how they are used:

$supplied$
)",
                  {{"supplied", orNothing(supplied)}});
}

// What is known to be missing.
void printOpen(Printer& printer, const Schema& schema) {
    Printer classes;
    Printer enums;
    std::size_t openClasses = 0;
    std::size_t openEnums = 0;
    for (const Type* type : schema.byName) {
        if (type->openFields) {
            ++openClasses;
            classes.print("- $name$\n", {{"name", linkTo(*type)}});
        } else if (type->openWords != 0) {
            ++openEnums;
            enums.print("- $name$: $open$, beside $known$\n",
                        {{"name", linkTo(*type)},
                         {"open", openWords(*type)},
                         {"known", std::to_string(type->words.size())}});
        }
    }
    printer.print(R"(

## Open

Who knows one of these adds it to the schema and builds anew; nothing else holds a field or a word.

Classes whose fields are not known ($openClasses$):

$classes$

Enumerations with values whose words are not known ($openEnums$):

$enums$
)",
                  {{"openClasses", std::to_string(openClasses)},
                   {"classes", orNothing(classes)},
                   {"openEnums", std::to_string(openEnums)},
                   {"enums", orNothing(enums)}});
}

std::string parametersOf(const Message* message) {
    if (message == nullptr) return {};
    std::vector<std::string> out;
    for (const Field& param : message->params)
        out.push_back(code(param.name) + " " + typeName(param.reference));
    return listOf(out);
}

std::string_view stemOf(const Message& request) {
    return std::string_view(request.name).substr(0, request.name.size() - kRequestSuffix.size());
}

void printMessages(Printer& printer, const Schema& schema) {
    std::map<std::string_view, const Message*> byName;
    for (const Message* message : schema.messagesByName)
        byName.emplace(message->name, message);
    std::set<const Message*> bound;
    for (const PortType& portType : schema.portTypes)
        for (const Operation& operation : portType.operations)
            bound.insert(operation.request);

    printer.print(R"(

## Messages

The parameters of each request and of its reply, whose names end in `_Request` and `_Reply`. A request
with a star belongs to no service.

| message | request | reply |
|---|---|---|
)");
    for (const Message* message : schema.messagesByName) {
        if (!message->isRequest) continue;
        const auto reply =
            byName.find(std::string(stemOf(*message)).append(std::string(kReplySuffix)));
        printer.print("| $stem$$star$ | $request$ | $reply$ |\n",
                      {{"stem", code(stemOf(*message))},
                       {"star", bound.contains(message) ? "" : " \\*"},
                       {"request", parametersOf(message)},
                       {"reply", parametersOf(reply == byName.end() ? nullptr : reply->second)}});
    }
}

void printServices(Printer& printer, const Schema& schema) {
    printer.print("\n\n## Services\n");
    for (const PortType& portType : schema.portTypes) {
        printer.print("\n\n### $name$ service\n\n$class$, namespace `$namespace$`\n",
                      {{"name", portType.name},
                       {"class", code(portType.className)},
                       {"namespace", portType.boundNamespace}});
        printParagraph(printer, portType.documentation);
        printer.print("\n\n| operation | message | SOAP action |\n|---|---|---|\n");
        for (const Operation& operation : portType.operations) {
            if (operation.request == nullptr) continue;
            printer.print("| $name$ | $stem$ | $action$ |\n",
                          {{"name", code(operation.name)},
                           {"stem", code(stemOf(*operation.request))},
                           {"action", code(operation.action)}});
        }
    }
}

std::size_t operationCount(const Schema& schema) {
    std::size_t count = 0;
    for (const PortType& portType : schema.portTypes)
        count += portType.operations.size();
    return count;
}

}  // namespace

std::string emitDocs(const Schema& schema) {
    Printer printer;
    const std::size_t properties = schema.properties.size() + (propertyBase(schema) ? 1 : 0);
    printer.print(R"(
<!-- Made by korva-schemac from $source$; do not edit. -->
# Vocabulary

- [$classes$](#classes)
- [$properties$](#properties)
- [$arrays$](#arrays)
- [$enums$](#enumerations)
- [$strings$](#restricted-strings)
- [$messages$](#messages)
- [$services$ with $operations$](#services)
- [What is supplied](#supplied) and [what is open](#open)

Fields stand in their declared order, which is their order on the wire. The C++ name of a type is
`KORVA` and its name with the first letter raised.
)",
                  {{"source", sourceName(schema.files.front())},
                   {"classes", counted(classesOf(schema).size(), "class", "classes")},
                   {"properties", counted(properties, "property", "properties")},
                   {"arrays", counted(schema.arrays.size(), "array", "arrays")},
                   {"enums", counted(schema.enums.size(), "enumeration", "enumerations")},
                   {"strings", counted(schema.restrictedStrings.size(), "restricted string",
                                       "restricted strings")},
                   {"messages", counted(schema.messagesByName.size(), "message", "messages")},
                   {"services", counted(schema.portTypes.size(), "service", "services")},
                   {"operations", counted(operationCount(schema), "operation", "operations")}});
    printSupplied(printer, schema);
    printOpen(printer, schema);
    printClasses(printer, schema);
    printProperties(printer, schema);
    printArrays(printer, schema.arrays);
    printEnums(printer, schema.enums);
    printRestrictedStrings(printer, schema.restrictedStrings);
    printMessages(printer, schema);
    printServices(printer, schema);
    return printer.take();
}

}  // namespace korva::schemac::emit
