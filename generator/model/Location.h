/// Where an item of the model stands in its source file.
#pragma once

#include <string>

namespace korva::schemac {

/// The path as the caller gave it (or as an include joined it), and a line counted from 1.
struct Location {
    std::string file;
    unsigned line = 0;
};

}  // namespace korva::schemac
