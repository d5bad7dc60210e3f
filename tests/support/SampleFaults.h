/// Faults in both shapes, with all that they can hold, for tests of writing and reading.
#pragma once

#include "tests/soap/ElementWriting.h"

#include <korva/KORVAFaultDetail.h>
#include <korva/KORVAHalyardHeader.h>
#include <korva/KORVASOAPFault.h>
#include <korva/KORVAUndocumentedFaultDetail.h>

#include <optional>
#include <string>
#include <vector>

namespace korva::test {

/// One message of a detail.
struct MessageText {
    const char* text;
    std::optional<int> nestingLevel;
};

/// One detail, whatever its shape. Null texts stay unset.
struct DetailTexts {
    const char* severity;
    const char* errorCode;
    std::vector<MessageText> messages;
};

/// What all sample faults tell: an error with two nested messages, and a warning without a code.
std::vector<DetailTexts> sampleDetails();

KORVAFaultDetail& makeDetail(const Maker& maker, const DetailTexts& texts);
KORVAUndocumentedFaultDetail& makeUndocumentedDetail(const Maker& maker, const DetailTexts& texts);

/// Adds the details behind those of this shape that the fault has.
void addDetails(const Maker& maker, KORVASOAPFault& fault, const std::vector<DetailTexts>& details);
void addUndocumentedDetails(const Maker& maker, KORVASOAPFault& fault,
                            const std::vector<DetailTexts>& details);

/// A fault with code, text and actor, and no details.
KORVASOAPFault& makeFault(const Maker& maker);
/// The same with the sample details in one shape.
KORVASOAPFault& makeDocumentedFault(const Maker& maker);
KORVASOAPFault& makeUndocumentedFault(const Maker& maker);

/// A bus header with a passport and tracking.
KORVAHalyardHeader& makeHeader(const Maker& maker);

/// The envelope of the fault.
std::string written(const KORVASOAPFault& fault, const KORVAHalyardHeader* header = nullptr,
                    bool formatted = false, bool writeXmlDeclaration = false);

}  // namespace korva::test
