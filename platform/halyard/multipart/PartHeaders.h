/// The header fields of one part.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace halyard {

/// Keeps its memory from one part to the next.
class PartHeaders {
public:
    void clear() noexcept;

    /// Adds a line, without its break: a field, or more of the one before.
    /// @throws BRIMStreamError it is neither
    void addLine(std::string_view line);

    /// The value of the first field of this name; null if there is none.
    const char* find(std::string_view name) const noexcept;

    /// As above, for what must not be told twice.
    /// @throws BRIMStreamError it is
    const char* findOnly(std::string_view name) const;

private:
    struct Field {
        std::size_t name;  ///< in `m_text`, as is the value
        std::size_t value;
    };

    std::string m_text;  ///< names and values, a NUL behind each
    std::vector<Field> m_fields;
};

}  // namespace halyard
