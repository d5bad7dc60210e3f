#include "generator/emit/Accessors.h"
#include "generator/emit/Emit.h"
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
    std::vector<std::string> named;
    namedClasses(message.params, named);
    Printer printer;
    printer.print(R"(
$made$
#pragma once

$baseInclude$

$check$

$forwards$
struct $class$_PrivateData;

$comment$
class KORVA_EXPORT $class$ : public KORVA_MessageObject {
public:
    $class$();
    ~$class$() override;
)",
                  {{"made", madeFrom(message.at.file)},
                   {"baseInclude", includes({"KORVA_MessageObject"})},
                   {"check", versionCheck},
                   {"forwards", forwards(named)},
                   {"comment", messageComment(message)},
                   {"class", message.className}});
    for (const Field& param : message.params)
        declareAccessors(printer, param);
    printer.print(R"(

protected:
    const korva::MessageDescriptor& descriptor() const override;

private:
    $class$_PrivateData* data() const;
};
)",
                  {{"class", message.className}});
    files.add("include/korva/" + message.className + ".h", printer.take());
}

void printMessage(Printer& printer, const Message& message) {
    const std::string record = message.className + "_PrivateData";
    const bool none = message.params.empty();
    printer.print("\n\nstruct $record$ : korva::Record {\n", {{"record", record}});
    printMembers(printer, message.params);
    printer.print("};\nnamespace {\n");
    if (!none) {
        printer.print("constexpr korva::FieldDescriptor $name$Params[] = {\n",
                      {{"name", message.name}});
        printFieldRows(printer, record, message.params);
        printer.print("};\n");
    }
    printer.print(R"(
constinit const korva::MessageDescriptor $name$Descriptor = {
    "$name$", KORVAMessageI::e$class$, &typeid($class$), $params$, $count$};
} // namespace

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
                  {{"name", message.name},
                   {"class", message.className},
                   {"record", record},
                   {"params", none ? "nullptr" : message.name + "Params"},
                   {"count", std::to_string(message.params.size())}});
    for (const Field& param : message.params) {
        defineAccessors(printer, message.className, param);
    }
}

void emitUnit(const Schema& schema, unsigned unit, Files& files) {
    std::vector<std::string> included;
    Printer messages;
    for (const Message* message : schema.messagesByName) {
        if (message->unit != unit) continue;
        included.push_back(message->className);
        createdClasses(message->params, included);
        printMessage(messages, *message);
    }
    Printer printer;
    printer.print(
        R"(
$made$
$internal$

$includes$

#if defined(__GNUC__)
// The records derive from korva::Record, and have no other base.
#pragma GCC diagnostic ignored "-Winvalid-offsetof"
#endif
)",
        {{"made", madeFrom(schema.messagesFile())},
         {"internal", internalIncludes({"core/ObjectCreation.h", "messages/MessageDescriptor.h"})},
         {"includes", includes(included)}});
    files.add("messages/KORVAMessages" + std::to_string(unit) + "_gen_.cpp",
              printer.take() + messages.take());
}

}  // namespace

void emitMessages(const Schema& schema, Files& files) {
    for (const Message* message : schema.messagesByName)
        emitHeader(*message, files);
    for (unsigned unit = 1; unit <= kMessageUnits; ++unit)
        emitUnit(schema, unit, files);
}

}  // namespace korva::schemac::emit
