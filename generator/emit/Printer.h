/// Prints templates in which $name$ stands for a value; the one way in which text is emitted.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

namespace korva::schemac::emit {

class Printer {
public:
    using Values = std::initializer_list<std::pair<std::string_view, std::string_view>>;

    /// Appends `text`, with each $name$ replaced by its value and $$ by a dollar sign. A newline at
    /// the very start of `text` is left out, so that a raw string may begin on a line of its own.
    ///
    /// A $name$ that stands alone in its line takes its indentation to each line of its value, and
    /// takes its line away when the value is empty.
    /// @throws std::logic_error `text` uses a name without a value
    void print(std::string_view text, Values values = {});

    void blankLine() { m_out.push_back('\n'); }

    const std::string& text() const { return m_out; }
    std::string take() { return std::move(m_out); }

private:
    void printLine(std::string_view line, Values values);

    std::string m_out;
};

}  // namespace korva::schemac::emit
