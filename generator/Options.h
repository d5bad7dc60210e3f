/// The command line of korva-schemac.
#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace korva::schemac {

struct Options {
    std::vector<std::string> schemas;
    std::vector<std::string> wsdls;
    std::string handWritten;
    std::string out;
    std::string docs;
    bool listOutputs = false;
    bool help = false;
};

/// Reads the arguments behind the program's name. What is wrong with them is told to `errors`, and
/// nothing is returned.
std::optional<Options> parseOptions(const std::vector<std::string>& arguments,
                                    std::ostream& errors);

/// The text of --help.
extern const char* const usage;

}  // namespace korva::schemac
