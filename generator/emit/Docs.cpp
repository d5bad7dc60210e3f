#include "generator/emit/Emit.h"
#include "generator/emit/Printer.h"
#include "generator/emit/Text.h"

#include <algorithm>

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

// A type as the schema names it, without the prefix of its own namespace.
std::string typeName(const TypeReference& reference) {
    return code(reference.type != nullptr ? reference.type->name : reference.text);
}

std::string meaning(const std::string& documentation, bool supplied) {
    return joined(cell(sentence(documentation)), supplied ? "*Supplied.*" : "");
}

std::string openWords(const Type& type) {
    if (type.openWords == kUnknownCount) return "an unknown number of words";
    return std::to_string(type.openWords) + (type.openWords == 1 ? " word" : " words");
}

void printParagraph(Printer& printer, const std::string& documentation) {
    if (!documentation.empty()) {
        printer.print("\n\n$text$\n", {{"text", sentence(documentation)}});
    }
}

void printFields(Printer& printer, const Type& type) {
    if (type.fields.empty()) return;
    printer.print("\n\n| field | type | meaning |\n|---|---|---|\n");
    for (const Field& field : type.fields) {
        printer.print("| $name$ | $type$ | $meaning$ |\n",
                      {{"name", code(field.name)},
                       {"type", typeName(field.reference)},
                       {"meaning", meaning(field.documentation, field.supplied)}});
    }
}

void printClasses(Printer& printer, std::vector<const Type*> classes) {
    std::sort(classes.begin(), classes.end(),
              [](const Type* left, const Type* right) { return left->name < right->name; });
    printer.print("\n\n## Classes\n");
    for (const Type* type : classes) {
        printer.print("\n\n### $name$\n\n$class$$base$$abstract$\n",
                      {{"name", type->name},
                       {"class", code(type->className)},
                       {"base", type->base ? ", extends " + typeName(*type->base) : ""},
                       {"abstract", type->isAbstract ? ", abstract" : ""}});
        printParagraph(printer, type->documentation);
        if (type->openFields) printer.print("\n\n*Open: further fields are not documented.*\n");
        printFields(printer, *type);
    }
}

void printProperties(Printer& printer, const std::vector<const Type*>& properties) {
    printer.print("\n\n## Properties\n\n| property | value |\n|---|---|\n");
    for (const Type* type : properties) {
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

void printEnums(Printer& printer, const std::vector<const Type*>& enums) {
    printer.print("\n\n## Enumerations\n");
    for (const Type* type : enums) {
        printer.print("\n\n### $name$\n", {{"name", type->name}});
        printParagraph(printer, type->documentation);
        if (type->openWords != 0) {
            printer.print("\n\n*Open: $words$ not documented.*\n", {{"words", openWords(*type)}});
        }
        if (type->words.empty()) continue;
        printer.print("\n\n| word | meaning |\n|---|---|\n");
        for (const Word& word : type->words) {
            printer.print("| $word$ | $meaning$ |\n",
                          {{"word", code(word.text)},
                           {"meaning", meaning(word.documentation, word.supplied)}});
        }
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

// What was chosen rather than documented, and what is known to be missing.
void printGaps(Printer& printer, const Schema& schema) {
    Printer supplied;
    Printer open;
    for (const Type* type : schema.byName) {
        std::vector<std::string> names;
        for (const Field& field : type->fields) {
            if (field.supplied) names.push_back(code(field.name));
        }
        for (const Word& word : type->words) {
            if (word.supplied) names.push_back(code(word.text));
        }
        std::string list;
        for (const std::string& name : names)
            list.append(list.empty() ? "" : ", ").append(name);
        if (!list.empty()) {
            supplied.print("- $name$: $list$\n", {{"name", code(type->name)}, {"list", list}});
        }
        if (type->openFields) {
            open.print("- $name$: fields\n", {{"name", code(type->name)}});
        } else if (type->openWords != 0) {
            open.print("- $name$: $words$\n",
                       {{"name", code(type->name)}, {"words", openWords(*type)}});
        }
    }
    if (supplied.text().empty()) supplied.print("Nothing.\n");
    if (open.text().empty()) open.print("Nothing.\n");
    printer.print(R"(

## Supplied

Chosen because the place has one standard word, and not documented:

$supplied$

## Open

Known to be larger than what is documented:

$open$
)",
                  {{"supplied", supplied.text()}, {"open", open.text()}});
}

}  // namespace

std::string emitDocs(const Schema& schema) {
    Printer printer;
    printer.print(R"(
<!-- Made by korva-schemac from $source$; do not edit. -->
# Vocabulary

The schema has $classes$ classes, $properties$ properties, $arrays$ arrays, $enums$ enumerations and
$strings$ restricted strings. Fields stand in their declared order, which is their order on the
wire. The C++ name of a type is `KORVA` and its name with the first letter raised.
)",
                  {{"source", sourceName(schema.files.front())},
                   {"classes", std::to_string(schema.classes.size())},
                   {"properties", std::to_string(schema.properties.size())},
                   {"arrays", std::to_string(schema.arrays.size())},
                   {"enums", std::to_string(schema.enums.size())},
                   {"strings", std::to_string(schema.restrictedStrings.size())}});
    printGaps(printer, schema);
    printClasses(printer, schema.classes);
    printProperties(printer, schema.properties);
    printArrays(printer, schema.arrays);
    printEnums(printer, schema.enums);
    printRestrictedStrings(printer, schema.restrictedStrings);
    return printer.take();
}

}  // namespace korva::schemac::emit
