/// Documents that a test has as text.
#pragma once

#include <brim/BRIMMemoryInputStream.h>
#include <zelidom/ZELIDOM_Document.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace korva::test {

inline ZELIDOM_Document parseDocument(
    std::string_view xml, std::size_t maximumDepth = ZELIDOM_Document::defaultMaximumDepth) {
    BRIMMemoryInputStream stream(xml.data(), xml.size());
    return ZELIDOM_Document::parse(stream, maximumDepth);
}

/// The text of the ZELIDOM_Error that `action` throws, or what else it does.
template <class Error, class Action>
std::string textOf(Action action) {
    try {
        action();
    } catch (const Error& error) {
        return error.getText();
    }
    return "(nothing was thrown)";
}

}  // namespace korva::test
