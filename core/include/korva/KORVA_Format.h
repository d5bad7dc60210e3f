/// Failures, children and paths in streams and, where the compiler has it, in `std::format`.
#pragma once

#include <korva/KORVA_Children.h>
#include <korva/KORVA_Path.h>
#include <zel/ZELThrowable.h>

#include <iosfwd>
#include <string>
#include <version>

#if defined(__cpp_lib_format)
#include <concepts>
#include <format>
#include <string_view>
#endif

/// Writes all that the failure can tell.
template <class Traits>
std::basic_ostream<char, Traits>& operator<<(std::basic_ostream<char, Traits>& out,
                                             const ZELThrowable& error) {
    return out << error.toString();
}

/// Writes the name and what is there: "name: region".
template <class Traits>
std::basic_ostream<char, Traits>& operator<<(std::basic_ostream<char, Traits>& out,
                                             const KORVA_Child& child) {
    return out << child.name() << ": " << child.describe();
}

/// Writes the path as it is written in a program.
template <class Traits>
std::basic_ostream<char, Traits>& operator<<(std::basic_ostream<char, Traits>& out,
                                             const KORVA_Path& path) {
    return out << path.toString();
}

#if defined(__cpp_lib_format)

/// As operator<<; takes the format of a text.
template <std::derived_from<ZELThrowable> Error>
struct std::formatter<Error, char> : std::formatter<std::string_view, char> {
    template <class Context>
    auto format(const Error& error, Context& context) const {
        return std::formatter<std::string_view, char>::format(error.toString(), context);
    }
};

/// As operator<<; takes the format of a text.
template <>
struct std::formatter<KORVA_Child, char> : std::formatter<std::string_view, char> {
    template <class Context>
    auto format(const KORVA_Child& child, Context& context) const {
        const std::string text = child.name() + ": " + child.describe();
        return std::formatter<std::string_view, char>::format(text, context);
    }
};

/// As operator<<; takes the format of a text.
template <>
struct std::formatter<KORVA_Path, char> : std::formatter<std::string_view, char> {
    template <class Context>
    auto format(const KORVA_Path& path, Context& context) const {
        return std::formatter<std::string_view, char>::format(path.toString(), context);
    }
};

#endif
