/// What a message holds, as text that does not depend on who wrote it.
#pragma once

#include <korva/KORVAMessageI.h>

#include <string>

namespace korva::test {

/// The bus header, if there is one, and each parameter, a line for each value:
///
///     header: halyardHeader
///       tracking: tracking
///         hopCount: 2
///     objectPath: "/content/report"
///     options: array of 1
///       [1]: runOptionBoolean
///         value: true
///
/// Of an object, what is null is left out, and so are arrays without items: no two toolkits agree
/// on the difference. Binary values are shown in hexadecimal digits. The scripts of tests/interop
/// print what they understood in the same way.
std::string describe(KORVAMessageI& message);

}  // namespace korva::test
