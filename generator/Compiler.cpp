#include "generator/Compiler.h"

#include "generator/Diagnostics.h"
#include "generator/Options.h"
#include "generator/emit/Emit.h"
#include "generator/model/Schema.h"
#include "generator/passes/Passes.h"
#include "generator/reader/SchemaReader.h"
#include "generator/reader/WsdlReader.h"
#include "generator/reader/XmlLoader.h"

#include <filesystem>
#include <fstream>
#include <ostream>

namespace korva::schemac {

namespace {

// The classes that the headers in the list are named after.
void readHandWritten(const std::string& path, model::Schema& schema, Diagnostics& diagnostics) {
    if (path.empty()) return;
    std::ifstream list(path);
    if (!list.is_open()) {
        diagnostics.error({path, 0}, "file", "it cannot be read", "an existing file");
    }
    for (std::string header; std::getline(list, header);) {
        const std::string name = std::filesystem::path(header).stem().string();
        if (!name.empty()) schema.handWritten.insert(name);
    }
}

}  // namespace

int run(const std::vector<std::string>& arguments, std::ostream& output, std::ostream& errors) {
    const auto options = parseOptions(arguments, errors);
    if (!options) return 2;
    if (options->help) {
        output << usage;
        return 0;
    }
    Diagnostics diagnostics;
    model::Schema schema;
    readHandWritten(options->handWritten, schema, diagnostics);
    {
        XmlLoader loader;
        SchemaReader schemas(loader, schema, diagnostics);
        for (const std::string& path : options->schemas)
            schemas.read(path);
        WsdlReader wsdls(loader, schema, diagnostics);
        for (const std::string& path : options->wsdls)
            wsdls.read(path);
    }
    runPasses(schema, diagnostics);
    if (diagnostics.any()) {
        errors << diagnostics.text();
        return 1;
    }
    const emit::Files files = emit::emitAll(schema);
    if (options->listOutputs) {
        for (const auto& [path, content] : files.all())
            output << path << "\n";
        return 0;
    }
    bool good = options->out.empty() || files.write(options->out, errors);
    if (!options->docs.empty()) {
        good = emit::writeFile(options->docs, emit::emitDocs(schema), errors) && good;
    }
    return good ? 0 : 1;
}

}  // namespace korva::schemac
