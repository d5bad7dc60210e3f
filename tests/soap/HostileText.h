/// What the tests of hostile input make it from, and what they look at.
#pragma once

#include "tests/soap/Reading.h"

#include <korva/KORVAAsynchRun_Request.h>
#include <korva/KORVASearchPathSingleObject.h>

#include <string>

namespace korva::test {

// The functions that tell of limits.
inline constexpr const char* soapParse = "KORVASOAPMessageIDeserializer::parse";
inline constexpr const char* xmlParse = "KORVAXMLDeserializer::parse";

inline std::string repeated(const std::string& text, int count) {
    std::string result;
    for (int i = 0; i != count; ++i)
        result += text;
    return result;
}

/// The object path of a `run` request.
inline const char* pathOf(const Binding& binding) {
    return static_cast<KORVAAsynchRun_Request&>(binding->getInputMessage())
        .getObjectPath()
        ->getValue();
}

}  // namespace korva::test
