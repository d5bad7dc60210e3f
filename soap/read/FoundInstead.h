/// What stands where an envelope was expected, in words for who has to find out why.
#pragma once

#include "soap/read/DocumentReceiver.h"

#include <string>
#include <string_view>

namespace korva {

/// What a document is that is no XML, by its first bytes: "an HTML page". Empty if it may well be
/// meant as XML.
std::string foundInsteadOfXml(std::string_view start);

/// What a document is by its root.
std::string foundInsteadOfEnvelope(const Element& root);

}  // namespace korva
