/// Runs the front half of the schema compiler over files of the tests.
#pragma once

#include "generator/Diagnostics.h"
#include "generator/model/Schema.h"

#include <string>
#include <vector>

namespace korva::schemac {

/// A file below tests/generator.
std::string testFile(const std::string& name);

std::string contentOf(const std::string& path);

/// A vocabulary that has been read and checked.
struct Model {
    Model(const std::vector<std::string>& schemas, const std::vector<std::string>& wsdls);

    model::Schema schema;
    Diagnostics diagnostics;

    const model::Type& type(const std::string& name) const;
    const model::Field& field(const std::string& typeName, const std::string& name) const;
    const model::Message& message(const std::string& name) const;
};

/// The vocabulary of tests/generator/sample.
Model sample();

}  // namespace korva::schemac
