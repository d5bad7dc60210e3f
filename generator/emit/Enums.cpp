#include "generator/emit/Accessors.h"
#include "generator/emit/Emit.h"
#include "generator/emit/Frame.h"
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

// "eKOVRA" is as published, here and in the assertion that names it.
void printEnumerators(Printer& printer, const Type& type) {
    printer.print(R"(
    /// The CRC-32 of each word.
    enum Enum : int {
        eKOVRAUninitialized = 0, ///< nothing is set
)");
    if (type.openWords != 0)
        printer.print(
            "        eKORVA_OtherWord = otherWord, ///< a word that is held as it stands\n");
    for (const Word& word : type.words) {
        const std::string identity = enumeratorValue(word.identity);
        if (word.documentation.empty()) {
            printer.print(
                "        $enumerator$ = $identity$, ///< $word$\n",
                {{"enumerator", word.enumerator}, {"identity", identity}, {"word", word.text}});
            continue;
        }
        const std::string comment =
            docComment(word.text + ": " + sentence(word.documentation), kEnumeratorIndent);
        printer.print(
            "        $comment$\n        $enumerator$ = $identity$,\n",
            {{"comment", comment}, {"enumerator", word.enumerator}, {"identity", identity}});
    }
    printer.print("    };\n");
}

void declareFunctions(Printer& printer, const Type& type) {
    declareLife(printer, type.className,
                "Copies the value; a word that is held as it stands is copied into `registry`.");
    printer.print(R"(

    /// The value of a word; eKOVRAUninitialized for the empty text.
    /// @throws ZELAssertError `text` is null
    /// @throws KORVAException 0xEA45DC29: the word is none of this enumeration
    static Enum stringToEnum(const char* text);

    /// The word of a value, which lives as long as the process; the empty text for
    /// eKOVRAUninitialized.
    /// @throws ZELAssertError the value has no word in this enumeration
    static const char* enumToString(Enum value);

    /// Sets the value of a word, as stringToEnum finds it.
    void setValue(const char* text);
    /// Stores the value unchecked.
    void setValue(Enum value);
    Enum getValue() const;

    /// The word that is held as it stands, or that of the value, as enumToString finds it.
    const char* toString();
    using KORVA_EnumObject::toString;

)");
    declareNames(printer, true);
    printer.print(R"(

protected:
    const korva::EnumDescriptor& descriptor() const override;
)");
}

void emitHeader(const Type& type, Files& files) {
    PublicHeaderFrame frame(files, type.className, type.at.file, "KORVA_EnumObject");
    Printer& printer = frame.content();
    printer.print("\n\nclass KORVAObjectRegistryI;\n\n");
    const ClassScope scope(printer, enumComment(type), type.className, "KORVA_EnumObject");
    printEnumerators(printer, type);
    printer.blankLine();
    declareFunctions(printer, type);
}

void printEntries(Printer& printer, const Type& type) {
    if (type.words.empty()) return;
    const NamespaceScope scope(printer);
    const TableScope entries(printer, "constexpr korva::EnumEntry " + type.name + "Entries");
    for (const Word& word : type.words) {
        printer.print("    {$crc$, $class$::$enumerator$},\n", {{"crc", hex(word.identity)},
                                                                {"class", type.className},
                                                                {"enumerator", word.enumerator}});
    }
}

void printEnum(Printer& printer, const Type& type) {
    printer.blankLine();
    printEntries(printer, type);
    printer.print(R"(
constinit const korva::EnumDescriptor korva::descriptors::$class$ = {
    "$class$",
    "$name$",
    $entries$,
    $count$,
    $open$,
};

$class$::$class$() = default;
$class$::$class$(const $class$& other, KORVAObjectRegistryI& registry) : KORVA_EnumObject() {
    copy(other, registry);
}
$class$::~$class$() = default;
$class$::Enum $class$::stringToEnum(const char* text) {
    return static_cast<Enum>(korva::stringToEnum(text, korva::descriptors::$class$));
}
const char* $class$::enumToString(Enum value) {
    return korva::enumToString(value, korva::descriptors::$class$);
}
void $class$::setValue(const char* text) { assign(stringToEnum(text)); }
void $class$::setValue(Enum value) { assign(value); }
$class$::Enum $class$::getValue() const { return static_cast<Enum>(value()); }
const char* $class$::toString() { return word(); }
const korva::EnumDescriptor& $class$::descriptor() const {
    return korva::descriptors::$class$;
}
)",
                  {{"class", type.className},
                   {"name", type.name},
                   {"entries", type.words.empty() ? "nullptr" : type.name + "Entries"},
                   {"count", std::to_string(type.words.size())},
                   {"open", std::to_string(type.openWords)}});
    defineNames(printer, type.className, true);
}

}  // namespace

void emitEnums(const Schema& schema, Files& files) {
    UnitFrame unit(files, "schema/KORVASchemaTypesEnum_gen_.cpp", schema.files.front(),
                   {"core/EnumWords.h", "core/ObjectName.h", "schema/KORVADescriptors_gen_.h"});
    for (const Type* type : schema.enums) {
        emitHeader(*type, files);
        unit.include(type->className);
        printEnum(unit.content(), *type);
    }
}

}  // namespace korva::schemac::emit
