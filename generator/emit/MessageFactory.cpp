#include "generator/emit/Emit.h"
#include "generator/emit/Printer.h"
#include "generator/emit/Text.h"

namespace korva::schemac::emit {

using namespace model;

void emitMessageFactory(const Schema& schema, Files& files) {
    const std::string made = madeFrom(schema.messagesFile());
    std::vector<std::string> included = {"KORVAMessageFactory"};
    Printer declarations;
    Printer parameters;
    Printer rows;
    declarations.print("$made$\n$check$\n", {{"made", made}, {"check", versionCheck}});
    for (const Message* message : schema.messagesByName) {
        const Printer::Values values = {{"class", message->className}};
        included.push_back(message->className);
        declarations.print("    static const KORVAParamDescriptor g_$class$ParamDescriptor[];\n",
                           values);
        parameters.print(R"(

constinit const KORVAMessageFactory::KORVAParamDescriptor
    KORVAMessageFactory::g_$class$ParamDescriptor[] = {
)",
                         values);
        for (const Field& param : message->params) {
            parameters.print("        {\"$name$\", $type$},\n",
                             {{"name", param.name}, {"type", objectType(param.reference)}});
        }
        parameters.print("        {nullptr, KORVASchemaTypeI::e_Unknown},\n};\n");
    }
    for (const Message* message : schema.messagesByIdentity) {
        rows.print(R"(
    {KORVAMessageI::e$class$, &createMessage<::$class$>,
     KORVAMessageFactory::g_$class$ParamDescriptor},
)",
                   {{"class", message->className}});
    }
    if (schema.messagesByIdentity.empty()) {
        rows.print("    {KORVAMessageI::e_Unknown, nullptr, nullptr}, // not counted\n");
    }
    files.add("include/korva/KORVAParamDescriptors_gen_.inc", declarations.take());

    Printer printer;
    printer.print(R"(
$made$
$internal$

$includes$
)",
                  {{"made", made},
                   {"internal", internalIncludes({"messages/MessageCreation.h",
                                                  "messages/MessageDescriptor.h"})},
                   {"includes", includes(included)}});
    Printer table;
    table.print(R"(

namespace korva {

constinit const MessageTypeRow messageTypes[] = {
)");
    Printer end;
    end.print(R"(
};

constinit const std::size_t messageTypeCount = $count$;

} // namespace korva
)",
              {{"count", std::to_string(schema.messagesByIdentity.size())}});
    files.add("messages/KORVAMessageFactory_gen_.cpp",
              printer.take() + parameters.take() + table.take() + rows.take() + end.take());
}

}  // namespace korva::schemac::emit
