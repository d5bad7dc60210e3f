/// What stands in a header field of a message.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace halyard {

/// Without the blanks, tabs and line breaks around it.
std::string_view trimmed(std::string_view text) noexcept;

/// Without one angle bracket at each end, where there is one.
std::string_view withoutBrackets(std::string_view id) noexcept;

/// On one line: line breaks become a blank with the blanks and tabs behind them. Without any behind
/// them they stay.
std::string unfolded(std::string_view field);

/// What stands before the parameters: "text/xml" of `text/xml; charset="UTF-8"`.
std::string_view valueOf(std::string_view field) noexcept;

/// The value of a parameter, without its quotes; nothing if there is none of this name.
/// @throws BRIMStreamError the parameters before it are malformed
std::optional<std::string> parameterOf(std::string_view field, std::string_view name);

/// Whether there is a character below the blank, or DEL.
bool hasControlCharacter(std::string_view text) noexcept;

}  // namespace halyard
