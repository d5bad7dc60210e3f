// Schemas and WSDL files at the schema compiler.
#include "fuzz/Target.h"
#include "generator/Compiler.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <unistd.h>

void korva::fuzz::attack(std::string_view input) {
    static const std::string folder = [] {
        const auto path =
            std::filesystem::temp_directory_path() / ("korva-fuzz-" + std::to_string(::getpid()));
        std::filesystem::create_directory(path);
        return path.string();
    }();
    const std::string schema = folder + "/fuzzed.xsd";
    std::ofstream(schema, std::ios::binary) << input;
    std::ostringstream output;
    std::ostringstream errors;
    const int status = schemac::run({"--schema", schema, "--list-outputs"}, output, errors);
    require((status == 0) == errors.str().empty(), "a schema that is refused is told of");
    schemac::run({"--schema", schema, "--wsdl", schema, "--list-outputs"}, output, errors);
}
