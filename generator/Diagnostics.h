/// Collects what is wrong with a schema, so that one run tells all of it.
#pragma once

#include "generator/model/Location.h"

#include <string>
#include <string_view>
#include <vector>

namespace korva::schemac {

class Diagnostics {
public:
    /// Records one error. `element` names the item ("complexType \"schedule\""), `wrong` says what
    /// is wrong with it and `expected` what would be right.
    void error(const Location& at, std::string_view element, std::string_view wrong,
               std::string_view expected);

    bool any() const { return !m_errors.empty(); }
    std::size_t count() const { return m_errors.size(); }

    /// One line for each error, `file:line: error: element: wrong; expected ...`, ordered by file
    /// and line.
    std::string text() const;

private:
    struct Error {
        Location at;
        std::string text;
    };

    std::vector<Error> m_errors;
};

/// `kind "name"`, the way in which errors name an item.
std::string item(std::string_view kind, std::string_view name);

/// `text` between quotation marks.
std::string inQuotes(std::string_view text);

/// `file:line`, for the second place that an error mentions.
std::string place(const Location& at);

}  // namespace korva::schemac
