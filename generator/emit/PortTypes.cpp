#include "generator/emit/Emit.h"
#include "generator/emit/Frame.h"
#include "generator/emit/Text.h"

#include <set>

namespace korva::schemac::emit {

using namespace model;

namespace {

void emitHeader(const PortType& portType, Files& files) {
    const std::string what = portType.documentation.empty()
                                 ? "The operations of the service \"" + portType.name + "\"."
                                 : sentence(portType.documentation);
    PublicHeaderFrame frame(files, portType.className, portType.at.file, "KORVA_PortType");
    Printer& printer = frame.content();
    printer.blankLine();
    const ClassScope scope(printer, docComment(what, 0), portType.className + " final",
                           "KORVA_PortType");
    printer.print(R"(
    /// The one instance, made on first use and never destroyed. Any thread may call this.
    /// @throws ZELOutOfMemoryError no memory is left
    static $class$& getInstance();

private:
    $class$();
)",
                  {{"class", portType.className}});
}

void printOperations(Printer& printer, const PortType& portType) {
    const TableScope table(printer,
                           "constexpr korva::OperationRow " + portType.name + "Operations");
    for (const OperationRow& row : portType.rows) {
        printer.print(R"(
    {$name$,
     KORVAMessageI::e$request$,
     KORVAMessageI::e$reply$,
     $action$},
)",
                      {{"name", literal(row.name)},
                       {"request", row.requestClass},
                       {"reply", row.replyClass},
                       {"action", literal(row.action)}});
    }
}

void printParameters(Printer& printer, const PortType& portType) {
    if (portType.params.empty()) return;
    const TableScope table(
        printer, "constexpr korva::OperationParameterRow " + portType.name + "Parameters");
    for (const OperationParam& row : portType.params) {
        printer.print("    {$key$, $type$},\n",
                      {{"key", literal(row.key)}, {"type", objectType(row.param->reference)}});
    }
}

void printTables(Printer& printer, const PortType& portType) {
    const NamespaceScope scope(printer);
    printOperations(printer, portType);
    printParameters(printer, portType);
    printer.print(
        R"(
constinit const korva::PortTypeDescriptor $name$Descriptor = {
    "$class$",
    "$name$",
    $namespace$,
    $name$Operations,
    $operationCount$,
    $parameters$,
    $parameterCount$,
};
)",
        {{"class", portType.className},
         {"name", portType.name},
         {"namespace", literal(portType.boundNamespace)},
         {"operationCount", std::to_string(portType.rows.size())},
         {"parameters", portType.params.empty() ? "nullptr" : portType.name + "Parameters"},
         {"parameterCount", std::to_string(portType.params.size())}});
}

void printPortType(Printer& printer, const PortType& portType) {
    printer.blankLine();
    printTables(printer, portType);
    printer.print(R"(

$class$::$class$() : KORVA_PortType($name$Descriptor) {}
$class$& $class$::getInstance() {
    static constinit korva::PortTypeSingleton<$class$> singleton;
    return singleton.get([] { return new $class$; });
}
)",
                  {{"class", portType.className}, {"name", portType.name}});
}

void emitUnit(const Schema& schema, unsigned unit, Files& files) {
    UnitFrame frame(files, "messages/KORVAPortTypes" + std::to_string(unit) + "_gen_.cpp",
                    schema.portTypesFile(),
                    {"messages/MessageDescriptor.h", "messages/PortTypeSingleton.h"});
    for (const PortType& portType : schema.portTypes) {
        if (portType.unit != unit) continue;
        frame.include(portType.className);
        printPortType(frame.content(), portType);
    }
}

/// The table of all of them.
void emitList(const Schema& schema, Files& files) {
    UnitFrame frame(files, "messages/KORVAPortTypeList_gen_.cpp", schema.portTypesFile(),
                    {"messages/MessageDescriptor.h"});
    std::set<std::string> names;
    for (const PortType& portType : schema.portTypes) {
        frame.include(portType.className);
        names.insert(portType.className);
    }
    Printer& printer = frame.content();
    printer.blankLine();
    const NamespaceScope scope(printer, "korva");
    {
        const TableScope table(printer, "constinit const PortTypeInstance portTypeInstances");
        for (const std::string& name : names)
            printer.print("    []() -> KORVA_PortType* { return &$class$::getInstance(); },\n",
                          {{"class", name}});
        if (names.empty()) printer.print("    nullptr, // not counted\n");
    }
    printer.print("\n\nconstinit const std::size_t portTypeCount = $count$;\n\n",
                  {{"count", std::to_string(names.size())}});
}

}  // namespace

void emitPortTypes(const Schema& schema, Files& files) {
    for (const PortType& portType : schema.portTypes)
        emitHeader(portType, files);
    for (unsigned unit = 1; unit <= kPortTypeUnits; ++unit)
        emitUnit(schema, unit, files);
    emitList(schema, files);
}

}  // namespace korva::schemac::emit
