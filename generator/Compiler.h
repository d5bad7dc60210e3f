/// The whole run of the schema compiler, apart from the process around it.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace korva::schemac {

/// Runs as the arguments say and returns the exit status: 0 done, 1 the vocabulary or a file is at
/// fault, 2 the arguments are.
int run(const std::vector<std::string>& arguments, std::ostream& output, std::ostream& errors);

}  // namespace korva::schemac
