#include "tests/support/Tables.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace korva::test {

namespace {

// "a: string, b: int"
std::vector<Parameter> parametersOf(const std::string& list) {
    std::vector<Parameter> out;
    std::istringstream in(list);
    std::string name;
    std::string type;
    while (in >> name >> type) {
        name.pop_back();
        if (type.back() == ',') type.pop_back();
        out.push_back({name, type});
    }
    return out;
}

}  // namespace

std::vector<std::string> tableLines(const char* file) {
    std::vector<std::string> out;
    std::ifstream in(std::string(KORVA_TEST_SOURCE_DIR "/tests/vocabulary/data/") + file);
    EXPECT_TRUE(in) << file;
    for (std::string line; std::getline(in, line);)
        if (!line.empty() && line.front() != '#') out.push_back(line);
    return out;
}

std::vector<std::vector<std::string>> tableRows(const char* file) {
    std::vector<std::vector<std::string>> out;
    for (const std::string& line : tableLines(file)) {
        std::vector<std::string>& row = out.emplace_back();
        if (line.front() == ' ') row.emplace_back();
        std::istringstream in(line);
        for (std::string word; in >> word;)
            row.push_back(word);
    }
    return out;
}

const std::vector<PortTypeTable>& portTypeTables() {
    static const std::vector<PortTypeTable> tables = [] {
        std::vector<PortTypeTable> out;
        for (const std::vector<std::string>& row : tableRows("operations.txt")) {
            if (row.size() == 2)
                out.push_back({row[0], row[1], {}});
            else
                out.back().operations.push_back({row.at(1), row.at(2), row.at(3), row.at(4)});
        }
        return out;
    }();
    return tables;
}

const std::vector<Signature>& signatures() {
    static const std::vector<Signature> rows = [] {
        std::vector<Signature> out;
        for (const std::string& line : tableLines("signatures.txt")) {
            const std::size_t open = line.find('(');
            const std::size_t arrow = line.find(") -> (");
            const std::size_t reply = arrow + std::string(") -> (").size();
            out.push_back({line.substr(0, open),
                           parametersOf(line.substr(open + 1, arrow - open - 1)),
                           parametersOf(line.substr(reply, line.size() - reply - 1))});
        }
        return out;
    }();
    return rows;
}

const std::vector<OptionFamily>& optionFamilies() {
    static const std::vector<OptionFamily> families = [] {
        std::vector<OptionFamily> out;
        for (const std::vector<std::string>& row : tableRows("option-families.txt")) {
            if (row.front().empty())
                out.back().leaves.push_back({row.at(1), row.at(2)});
            else
                out.push_back({row[0], row.at(1), row.at(2), {}});
        }
        return out;
    }();
    return families;
}

}  // namespace korva::test
