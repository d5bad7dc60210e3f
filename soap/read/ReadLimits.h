/// What a document may ask for before reading it is given up.
#pragma once

#include <cstddef>

namespace korva {

/// The limits of a deserializer, which documents them at its setters.
struct ReadLimits {
    std::size_t depth = 10'000;
    std::size_t text = std::size_t{1} << 30U;       ///< in units of UTF-16
    std::size_t startTag = std::size_t{64} << 10U;  ///< in bytes
    std::size_t attributes = 256;                   ///< of one start tag, declarations included
    std::size_t declarations = 1'000;               ///< in scope at one place
    std::size_t names = 50'000;  ///< that differ, of elements, attributes, prefixes
    std::size_t entityExpansions = 10'000;
    std::size_t entityNesting = 64;
    /// Or ten times the document, in UTF-16; the same for what references lead to.
    std::size_t expandedText = std::size_t{1} << 20U;
    std::size_t references = 100'000;  ///< between elements
    bool refuseDocumentType = false;
};

}  // namespace korva
