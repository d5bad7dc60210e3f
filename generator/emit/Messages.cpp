#include "generator/emit/Accessors.h"
#include "generator/emit/Emit.h"
#include "generator/emit/Frame.h"
#include "generator/emit/Text.h"

namespace korva::schemac::emit {

using namespace model;

namespace {

std::string messageComment(const Message& message) {
    if (!message.documentation.empty()) return docComment(sentence(message.documentation), 0);
    return docComment(
        (message.isRequest ? "The request \"" : "The reply \"") + message.name + "\".", 0);
}

void emitHeader(const Message& message, Files& files) {
    PublicHeaderFrame frame(files, message.className, message.at.file, "KORVA_MessageObject");
    Printer& printer = frame.content();
    printer.print(
        R"(

$forwards$
struct $class$_PrivateData;

)",
        {{"forwards", forwards(namedClasses(message.params))}, {"class", message.className}});
    const ClassScope scope(printer, messageComment(message), message.className,
                           "KORVA_MessageObject");
    printer.print("    $class$();\n    ~$class$() override;\n", {{"class", message.className}});
    for (const Field& param : message.params)
        declareAccessors(printer, param);
    printer.print(R"(

protected:
    const korva::MessageDescriptor& descriptor() const override;

private:
    $class$_PrivateData* data() const;
)",
                  {{"class", message.className}});
}

void printTables(Printer& printer, const Message& message) {
    const NamespaceScope scope(printer);
    const bool none = message.params.empty();
    if (!none) {
        const TableScope params(printer,
                                "constexpr korva::FieldDescriptor " + message.name + "Params");
        printFieldRows(printer, message.className + "_PrivateData", message.params);
    }
    printer.print(R"(
constinit const korva::MessageDescriptor $name$Descriptor = {
    "$name$", KORVAMessageI::e$class$, &typeid($class$), $params$, $count$};
)",
                  {{"name", message.name},
                   {"class", message.className},
                   {"params", none ? "nullptr" : message.name + "Params"},
                   {"count", std::to_string(message.params.size())}});
}

void printMessage(Printer& printer, const Message& message) {
    const std::string record = message.className + "_PrivateData";
    printer.print("\n\nstruct $record$ : korva::Record {\n", {{"record", record}});
    printMembers(printer, message.params);
    printer.print("};\n");
    printTables(printer, message);
    printer.print(R"(

inline $record$* $class$::data() const {
    return static_cast<$record$*>(m_pPrivateData);
}
$class$::$class$()
    : KORVA_MessageObject(new $record$) {}
$class$::~$class$() = default;
const korva::MessageDescriptor& $class$::descriptor() const {
    return $name$Descriptor;
}
)",
                  {{"name", message.name}, {"class", message.className}, {"record", record}});
    for (const Field& param : message.params) {
        defineAccessors(printer, message.className, param);
    }
}

void emitUnit(const Schema& schema, unsigned unit, Files& files) {
    UnitFrame frame(files, "messages/KORVAMessages" + std::to_string(unit) + "_gen_.cpp",
                    schema.messagesFile(),
                    {"core/ObjectCreation.h", "messages/MessageDescriptor.h"});
    frame.content().print(R"(

#if defined(__GNUC__)
// The records derive from korva::Record, and have no other base.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"
#endif
)");
    for (const Message* message : schema.messagesByName) {
        if (message->unit != unit) continue;
        frame.include(message->className);
        frame.include(createdClasses(message->params));
        printMessage(frame.content(), *message);
    }
}

}  // namespace

void emitMessages(const Schema& schema, Files& files) {
    for (const Message* message : schema.messagesByName)
        emitHeader(*message, files);
    for (unsigned unit = 1; unit <= kMessageUnits; ++unit)
        emitUnit(schema, unit, files);
}

}  // namespace korva::schemac::emit
