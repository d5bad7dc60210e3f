/// Short ways to read envelopes as real peers send them.
#pragma once

#include "tests/soap/Reading.h"
#include "tests/toolkits/Describe.h"

#include <korva/KORVAMessageI.h>
#include <korva/KORVA_EnvelopeReader.h>

#include <ostream>
#include <string>
#include <vector>

namespace korva::test {

/// What an observer was told.
struct Finding {
    KORVA_ReadingFinding::Kind kind;
    std::string path;
    unsigned long long line;
    std::string namespaceUri;
    std::string name;
    std::string reason;

    bool operator==(const Finding&) const = default;
    friend std::ostream& operator<<(std::ostream& stream, const Finding& finding) {
        return stream << finding.kind << ' ' << finding.path << " line " << finding.line << " {"
                      << finding.namespaceUri << '}' << finding.name << ": " << finding.reason;
    }
};

class FindingList final : public KORVA_ReadingObserver {
public:
    void notice(const KORVA_ReadingFinding& found) override {
        findings.push_back(
            {found.kind, found.path, found.line, found.namespaceUri, found.name, found.reason});
    }

    std::vector<Finding> findings;
};

/// A request that was read.
using Read = ZELSmartPointer<KORVAPortTypeBinding>;

inline Read readWith(KORVASOAPMessageIDeserializer& deserializer, const std::string& envelope) {
    BRIMMemoryInputStream stream(envelope.data(), envelope.size());
    Read read;
    deserializer.parse(stream, {&KORVAReportServicePortType::getInstance()}, read);
    return read;
}

inline Read readTolerantly(const std::string& envelope) {
    KORVASOAPMessageIDeserializer deserializer;
    deserializer.setPolicy(KORVA_ReadingPolicy::tolerant());
    return readWith(deserializer, envelope);
}

/// What the request holds that is read of an envelope.
inline std::string described(const std::string& envelope) {
    return describe(readTolerantly(envelope)->getInputMessage());
}

/// An envelope with the operation "run" of the report service, and what stands behind it.
inline std::string run(const std::string& parameters, const std::string& behind = {},
                       const std::string& header = {}) {
    return envelope(
        "<r:run xmlns:r=\"" + reportNamespace + "\">" + parameters + "</r:run>" + behind, header);
}

/// The parameters of "run", with these options.
inline std::string runWithOptions(const std::string& options, const std::string& behind = {}) {
    return run(
        "<objectPath>/a</objectPath><parameterValues xsi:type=\"SOAP-ENC:Array\" "
        "SOAP-ENC:arrayType=\"bus:parameterValue[]\"/><options xsi:type=\"SOAP-ENC:Array\" "
        "SOAP-ENC:arrayType=\"bus:option[]\">" +
            options + "</options>",
        behind);
}

}  // namespace korva::test
