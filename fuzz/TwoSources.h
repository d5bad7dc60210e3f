/// One document through both of the library's parsers.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace korva::fuzz {

/// The limit of a start tag with which Xerces-C reads all documents.
constexpr std::size_t startTagOfXerces = 10'000'000;

/// Tells how what comes of a document differs between the parser that its first bytes choose and
/// Xerces-C; the empty text if it does not. It is read for its events, as a request, as a reply and
/// as a document of one object: both tell the same events and give the same objects, or tell the
/// same events up to an error with the same number. The XML platform must have been started.
/// @param piece the most bytes that the chosen parser gets by a read of the stream
std::string differenceOfSources(std::string_view document, std::size_t piece);

}  // namespace korva::fuzz
