// Envelopes of which the reader is told nothing, read as real peers send them.
#include "fuzz/Target.h"
#include "fuzz/Wire.h"

#include <korva/KORVAException.h>
#include <korva/KORVAMessageI.h>
#include <korva/KORVASOAPFault.h>
#include <korva/KORVA_EnvelopeReader.h>

namespace {

/// Is told of everything.
struct Observer final : KORVA_ReadingObserver {
    void notice(const KORVA_ReadingFinding& finding) override {
        korva::fuzz::require(finding.path[0] == '/' && finding.name[0] != '\0',
                             "a finding has a place and a name");
    }
};

KORVA_Envelope read(std::string_view envelope, KORVA_AttachmentHandler* attachments) {
    BRIMMemoryInputStream stream(envelope.data(), envelope.size());
    Observer observer;
    KORVA_EnvelopeReader reader;
    reader.deserializer().setAttachmentHandler(attachments);
    reader.deserializer().setObserver(&observer);
    // What is read is written as a tree.
    reader.deserializer().setMaximumExpandedText(10'000);
    return reader.read(stream);
}

/// The text of a detail is a document of its own, whatever its types are.
void requireWellFormed(const char* text) {
    constexpr unsigned malformed = 0xEA441F8B;
    try {
        korva::fuzz::readDocument(text, korva::fuzz::makeRegistry());
    } catch (const KORVAException& refusal) {
        korva::fuzz::require(refusal.getMessages()[0].getId() != malformed,
                             "a detail is a document");
    }
}

}  // namespace

void korva::fuzz::attack(std::string_view input) {
    KORVA_AttachmentHandler attachments;
    const KORVA_Envelope envelope = read(input, &attachments);
    require((envelope.getFault() == nullptr) == (envelope.getMessage() != nullptr),
            "an envelope holds a message or a fault");
    if (const KORVASOAPFault* const fault = envelope.getFault()) {
        if (const char* const text = fault->getDetailText()) requireWellFormed(text);
        return;
    }
    std::string bytes = written(*envelope.getBinding(), *envelope.getMessage());
    const auto readAndWrite = [&] {
        const KORVA_Envelope again = read(bytes, nullptr);
        require(again.getKind() == envelope.getKind(), "an envelope stays what it is");
        return written(*again.getBinding(), *again.getMessage());
    };
    // An array that was missing comes back empty; from then on nothing changes.
    bytes = mustTake(readAndWrite, "a message that was written is read");
    requireSame(readAndWrite(), bytes, "a message is written as it is read");
}
