#include "generator/emit/Accessors.h"
#include "generator/emit/Emit.h"
#include "generator/emit/Text.h"

namespace korva::schemac::emit {

using namespace model;

namespace {

constexpr std::size_t kEnumeratorIndent = 8;

std::string openness(const Type& type) {
    if (type.openWords == kUnknownCount) return "There are further words, which are not known.";
    if (type.openWords == 0) return {};
    return "Further words that are not known: " + std::to_string(type.openWords) + ".";
}

std::string enumComment(const Type& type) {
    const std::string what = type.documentation.empty()
                                 ? "The enumeration \"" + type.name + "\" of the schema."
                                 : sentence(type.documentation);
    return docComment(joined(what, openness(type)), 0);
}

void printEnumerators(Printer& printer, const Type& type) {
    for (const Word& word : type.words) {
        if (word.documentation.empty()) {
            printer.print("        $enumerator$ = $identity$, ///< $word$\n",
                          {{"enumerator", word.enumerator},
                           {"identity", decimal(word.identity)},
                           {"word", word.text}});
            continue;
        }
        const std::string comment =
            docComment(word.text + ": " + sentence(word.documentation), kEnumeratorIndent);
        printer.print("        $comment$\n        $enumerator$ = $identity$,\n",
                      {{"comment", comment},
                       {"enumerator", word.enumerator},
                       {"identity", decimal(word.identity)}});
    }
}

void emitHeader(const Type& type, Files& files) {
    Printer printer;
    printer.print(R"(
$made$
#pragma once

$baseInclude$

$check$

class KORVAObjectRegistryI;

$comment$
class KORVA_EXPORT $class$ : public KORVA_EnumObject {
public:
    /// The CRC-32 of each word.
    enum Enum : int {
        eKOVRAUninitialized = 0, ///< nothing is set
)",
                  {{"made", madeFrom(type.at.file)},
                   {"baseInclude", includes({"KORVA_EnumObject"})},
                   {"check", versionCheck},
                   {"comment", enumComment(type)},
                   {"class", type.className}});
    printEnumerators(printer, type);
    printer.print(R"(
    };

    $class$();
    /// Copies the value; nothing is registered.
    $class$(const $class$& other, KORVAObjectRegistryI& registry);
    ~$class$() override;

    /// The value of a word; eKOVRAUninitialized for the empty text.
    /// @throws ZELAssertError `text` is null
    /// @throws KORVAException 0xEA45DC29: the word is none of this enumeration
    static Enum stringToEnum(const char* text);

    /// The word of a value, which lives as long as the process; the empty text for
    /// eKOVRAUninitialized.
    /// @throws ZELAssertError the value is none of this enumeration
    static const char* enumToString(Enum value);

    /// Sets the value of a word, as stringToEnum finds it.
    void setValue(const char* text);
    /// Stores the value unchecked.
    void setValue(Enum value);
    Enum getValue() const;

    /// The word of the value, as enumToString finds it.
    const char* toString();

)",
                  {{"class", type.className}});
    declareNames(printer, true);
    printer.print(R"(

protected:
    const korva::EnumDescriptor& descriptor() const override;
};
)");
    files.add("include/korva/" + type.className + ".h", printer.take());
}

void printEnum(Printer& printer, const Type& type) {
    const bool none = type.words.empty();
    printer.print("\n\n");
    if (!none) {
        printer.print("namespace {\nconstexpr korva::EnumEntry $name$Entries[] = {\n",
                      {{"name", type.name}});
        for (const Word& word : type.words) {
            printer.print("    {$crc$, $class$::$enumerator$},\n",
                          {{"crc", hex(word.identity)},
                           {"class", type.className},
                           {"enumerator", word.enumerator}});
        }
        printer.print("};\n} // namespace\n");
    }
    printer.print(R"(
constinit const korva::EnumDescriptor korva::descriptors::$class$ = {
    "$class$",
    "$name$",
    $entries$,
    $count$,
    $open$,
};

$class$::$class$() = default;
$class$::$class$(const $class$& other, KORVAObjectRegistryI&) : KORVA_EnumObject() {
    m_value = other.m_value;
}
$class$::~$class$() = default;
$class$::Enum $class$::stringToEnum(const char* text) {
    return static_cast<Enum>(korva::stringToEnum(text, korva::descriptors::$class$));
}
const char* $class$::enumToString(Enum value) {
    return korva::enumToString(value, korva::descriptors::$class$);
}
void $class$::setValue(const char* text) { m_value = stringToEnum(text); }
void $class$::setValue(Enum value) { m_value = value; }
$class$::Enum $class$::getValue() const { return static_cast<Enum>(m_value); }
const char* $class$::toString() { return enumToString(getValue()); }
const korva::EnumDescriptor& $class$::descriptor() const {
    return korva::descriptors::$class$;
}
)",
                  {{"class", type.className},
                   {"name", type.name},
                   {"entries", none ? "nullptr" : type.name + "Entries"},
                   {"count", std::to_string(type.words.size())},
                   {"open", std::to_string(type.openWords)}});
    defineNames(printer, type.className, true);
}

}  // namespace

void emitEnums(const Schema& schema, Files& files) {
    std::vector<std::string> included;
    Printer enums;
    for (const Type* type : schema.enums) {
        emitHeader(*type, files);
        included.push_back(type->className);
        printEnum(enums, *type);
    }
    Printer printer;
    printer.print(
        R"(
$made$
$internal$

$includes$
)",
        {{"made", madeFrom(schema.files.front())},
         {"internal", internalIncludes({"core/EnumWords.h", "core/ObjectName.h",
                                        "schema/KORVADescriptors_gen_.h"})},
         {"includes", includes(included)}});
    files.add("schema/KORVASchemaTypesEnum_gen_.cpp", printer.take() + enums.take());
}

}  // namespace korva::schemac::emit
