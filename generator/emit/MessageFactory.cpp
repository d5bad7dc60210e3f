#include "generator/emit/Emit.h"
#include "generator/emit/Frame.h"
#include "generator/emit/Text.h"

namespace korva::schemac::emit {

using namespace model;

namespace {

void emitDeclarations(const Schema& schema, Files& files) {
    FragmentFrame fragment(files, "KORVAParamDescriptors_gen_.inc", schema.messagesFile());
    for (const Message* message : schema.messagesByName) {
        fragment.content().print(
            "    static const KORVAParamDescriptor g_$class$ParamDescriptor[];\n",
            {{"class", message->className}});
    }
}

void printParameters(Printer& printer, const Message& message) {
    printer.print(R"(

constinit const KORVAMessageFactory::KORVAParamDescriptor
    KORVAMessageFactory::g_$class$ParamDescriptor[] = {
)",
                  {{"class", message.className}});
    for (const Field& param : message.params) {
        printer.print("        {\"$name$\", $type$},\n",
                      {{"name", param.name}, {"type", objectType(param.reference)}});
    }
    printer.print("        {nullptr, KORVASchemaTypeI::e_Unknown},\n};\n");
}

void printTypes(Printer& printer, const Schema& schema) {
    const TableScope table(printer, "constinit const MessageTypeRow messageTypes");
    for (const Message* message : schema.messagesByIdentity) {
        printer.print(R"(
    {KORVAMessageI::e$class$, &createMessage<::$class$>,
     KORVAMessageFactory::g_$class$ParamDescriptor},
)",
                      {{"class", message->className}});
    }
    if (schema.messagesByIdentity.empty()) {
        printer.print("    {KORVAMessageI::e_Unknown, nullptr, nullptr}, // not counted\n");
    }
}

}  // namespace

void emitMessageFactory(const Schema& schema, Files& files) {
    emitDeclarations(schema, files);
    UnitFrame unit(files, "messages/KORVAMessageFactory_gen_.cpp", schema.messagesFile(),
                   {"messages/MessageCreation.h", "messages/MessageDescriptor.h"});
    unit.include("KORVAMessageFactory");
    Printer& printer = unit.content();
    for (const Message* message : schema.messagesByName) {
        unit.include(message->className);
        printParameters(printer, *message);
    }
    printer.blankLine();
    const NamespaceScope scope(printer, "korva");
    printer.blankLine();
    printTypes(printer, schema);
    printer.print("\n\nconstinit const std::size_t messageTypeCount = $count$;\n\n",
                  {{"count", std::to_string(schema.messagesByIdentity.size())}});
}

}  // namespace korva::schemac::emit
