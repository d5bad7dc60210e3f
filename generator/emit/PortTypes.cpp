#include "generator/emit/Emit.h"
#include "generator/emit/Printer.h"
#include "generator/emit/Text.h"

namespace korva::schemac::emit {

using namespace model;

namespace {

void emitHeader(const PortType& portType, Files& files) {
    const std::string what = portType.documentation.empty()
                                 ? "The operations of the service \"" + portType.name + "\"."
                                 : sentence(portType.documentation);
    Printer printer;
    printer.print(R"(
$made$
#pragma once

$baseInclude$

$check$

$comment$
class KORVA_EXPORT $class$ final : public KORVA_PortType {
public:
    /// The one instance, made on first use and never destroyed. Any thread may call this.
    /// @throws ZELOutOfMemoryError no memory is left
    static $class$& getInstance();

private:
    $class$();
};
)",
                  {{"made", madeFrom(portType.at.file)},
                   {"baseInclude", includes({"KORVA_PortType"})},
                   {"check", versionCheck},
                   {"comment", docComment(what, 0)},
                   {"class", portType.className}});
    files.add("include/korva/" + portType.className + ".h", printer.take());
}

void printOperation(Printer& printer, const std::string& name, std::string_view request,
                    std::string_view reply, const std::string& action) {
    printer.print(R"(
    {$name$,
     KORVAMessageI::e$request$,
     KORVAMessageI::e$reply$,
     $action$},
)",
                  {{"name", literal(name)},
                   {"request", request},
                   {"reply", reply},
                   {"action", literal(action)}});
}

void printPortType(Printer& printer, const PortType& portType) {
    printer.print(R"(

namespace {
constexpr korva::OperationRow $name$Operations[] = {
)",
                  {{"name", portType.name}});
    // The pair of messages without name and parameters binds to the empty name.
    printOperation(printer, "", "KORVA_Null_Request", "KORVA_Null_Reply",
                   portType.operations.front().action);
    for (const Operation* row : portType.rows) {
        printOperation(printer, row->name, row->request->className, row->reply->className,
                       row->action);
    }
    printer.print("};\n");
    const bool none = portType.params.empty();
    if (!none) {
        printer.print("constexpr korva::OperationParameterRow $name$Parameters[] = {\n",
                      {{"name", portType.name}});
        for (const OperationParam& row : portType.params) {
            printer.print("    {$key$, $type$},\n",
                          {{"key", literal(row.key)}, {"type", objectType(row.param->reference)}});
        }
        printer.print("};\n");
    }
    printer.print(R"(
constinit const korva::PortTypeDescriptor $name$Descriptor = {
    "$class$",
    "$name$",
    $namespace$,
    $name$Operations,
    $operationCount$,
    $parameters$,
    $parameterCount$,
};
} // namespace

$class$::$class$() : KORVA_PortType($name$Descriptor) {}
$class$& $class$::getInstance() {
    static constinit korva::PortTypeSingleton<$class$> singleton;
    return singleton.get([] { return new $class$; });
}
)",
                  {{"class", portType.className},
                   {"name", portType.name},
                   {"namespace", literal(portType.boundNamespace)},
                   {"operationCount", std::to_string(portType.rows.size() + 1)},
                   {"parameters", none ? "nullptr" : portType.name + "Parameters"},
                   {"parameterCount", std::to_string(portType.params.size())}});
}

}  // namespace

void emitPortTypes(const Schema& schema, Files& files) {
    for (const PortType& portType : schema.portTypes)
        emitHeader(portType, files);
    for (unsigned unit = 1; unit <= kPortTypeUnits; ++unit) {
        std::vector<std::string> included;
        Printer portTypes;
        for (const PortType& portType : schema.portTypes) {
            if (portType.unit != unit) continue;
            included.push_back(portType.className);
            printPortType(portTypes, portType);
        }
        Printer printer;
        printer.print(
            R"(
$made$
$internal$

$includes$
)",
            {{"made", madeFrom(schema.portTypesFile())},
             {"internal",
              internalIncludes({"messages/MessageDescriptor.h", "messages/PortTypeSingleton.h"})},
             {"includes", includes(included)}});
        files.add("messages/KORVAPortTypes" + std::to_string(unit) + "_gen_.cpp",
                  printer.take() + portTypes.take());
    }
}

}  // namespace korva::schemac::emit
