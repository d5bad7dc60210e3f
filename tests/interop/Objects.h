/// Short ways to make and to look at objects, and the values that both directions carry.
#pragma once

#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVAXSBase64Binary.h>

#include <cstddef>
#include <string>

namespace korva::test {

/// Text with all that needs escaping in XML, and letters of one to four bytes.
inline constexpr const char* anyText =
    "a<b> & \"c\" 'd' ]]> \u00e9 \u00df \u6f22\u5b57 \U0001F600\ttab";

/// Bytes that are neither text nor end at a NUL.
inline const std::string someBytes("\0\x01\xFE\xFF\x61\x62\x63", 7);

inline KORVAXSBase64Binary* makeBinary(KORVAObjectRegistryI* registry, const std::string& content) {
    return registry->make<KORVAXSBase64Binary>(content.data(), content.size());
}

inline std::string bytes(const KORVAXSBase64Binary* binary) {
    return binary != nullptr ? std::string(binary->str(), binary->pcount()) : "(null)";
}

/// The zero-based element `i` of an array.
/// @throws std::out_of_range there is none
/// @throws std::bad_cast it is no X
template <class X, class Array>
X& item(Array& array, std::size_t i) {
    return dynamic_cast<X&>(*array.at(i));
}

}  // namespace korva::test
