/// The tables of tests/vocabulary/data: what the vocabulary must have, kept apart from the schema.
#pragma once

#include <string>
#include <vector>

namespace korva::test {

/// The words of each line of a file of that folder. Empty lines and lines that begin with '#' are
/// left out; a line that is indented has an empty first word.
std::vector<std::vector<std::string>> tableRows(const char* file);

/// The lines of a file of that folder, without those that are empty or begin with '#'.
std::vector<std::string> tableLines(const char* file);

/// One row of a port type's table.
struct Operation {
    std::string name;
    std::string request;
    std::string reply;
    std::string action;  ///< behind the authority
};

struct PortTypeTable {
    std::string name;
    std::string boundNamespace;  ///< behind the authority
    std::vector<Operation> operations;
};

/// operations.txt.
const std::vector<PortTypeTable>& portTypeTables();

struct Parameter {
    std::string name;
    std::string type;  ///< an XML name, or "string", "int", "boolean", "base64"
};

/// The parameters of the two messages of one stem.
struct Signature {
    std::string stem;  ///< "asynchRun"
    std::vector<Parameter> request;
    std::vector<Parameter> reply;
};

/// signatures.txt.
const std::vector<Signature>& signatures();

struct OptionLeaf {
    std::string name;
    std::string valueType;  ///< as XSI type; "-" when there is no field "value"
};

struct OptionFamily {
    std::string name;
    std::string nameType;  ///< as XSI type
    std::string nameCount;
    std::vector<OptionLeaf> leaves;
};

/// option-families.txt.
const std::vector<OptionFamily>& optionFamilies();

}  // namespace korva::test
