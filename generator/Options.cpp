#include "generator/Options.h"

#include <ostream>

namespace korva::schemac {

const char* const usage =
    R"(usage: korva-schemac --schema <file.xsd> [--wsdl <file.wsdl>]... <output>...

Reads a vocabulary and writes its C++ classes and tables.

  --schema <file>    XML Schema file; the files that it includes are read with it
  --wsdl <file>      WSDL 1.1 file with messages, port types or bindings; repeat it in the order
                     in which the port types are to be written
  --hand-written <file>
                     a list of headers that are written by hand, a path a line: nothing that is
                     made may have the name of one
  --out <dir>        write headers to <dir>/include/korva and units to <dir>/<room>; files whose
                     content is already right are not touched. Needs --hand-written
  --docs <file>      write the vocabulary as a Markdown text
  --list-outputs     print what --out writes, one path relative to <dir> a line, and write nothing
  --help             print this text

An error in a vocabulary is told as `file:line: error: element: what is wrong; expected ...`. All
errors are told at once. Exit status: 0 done, 1 the vocabulary or a file is at fault, 2 the command
line is.
)";

std::optional<Options> parseOptions(const std::vector<std::string>& arguments,
                                    std::ostream& errors) {
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (argument == "--help") {
            options.help = true;
            return options;
        }
        if (argument == "--list-outputs") {
            options.listOutputs = true;
            continue;
        }
        const bool known = argument == "--schema" || argument == "--wsdl" || argument == "--out" ||
                           argument == "--docs" || argument == "--hand-written";
        if (!known) {
            errors << "korva-schemac: unknown argument \"" << argument << "\"\n" << usage;
            return std::nullopt;
        }
        if (i + 1 == arguments.size()) {
            errors << "korva-schemac: " << argument << " needs a value\n" << usage;
            return std::nullopt;
        }
        const std::string& value = arguments[++i];
        if (argument == "--schema") options.schemas.push_back(value);
        if (argument == "--wsdl") options.wsdls.push_back(value);
        if (argument == "--hand-written") options.handWritten = value;
        if (argument == "--out") options.out = value;
        if (argument == "--docs") options.docs = value;
    }
    if (options.schemas.empty()) {
        errors << "korva-schemac: no --schema is given\n" << usage;
        return std::nullopt;
    }
    if (options.out.empty() && options.docs.empty() && !options.listOutputs) {
        errors << "korva-schemac: none of --out, --docs and --list-outputs is given\n" << usage;
        return std::nullopt;
    }
    if (!options.out.empty() && options.handWritten.empty()) {
        errors << "korva-schemac: --out is given without --hand-written\n" << usage;
        return std::nullopt;
    }
    return options;
}

}  // namespace korva::schemac
