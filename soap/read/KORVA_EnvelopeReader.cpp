#include "korva/KORVA_EnvelopeReader.h"

#include "soap/read/MessageReader.h"

#include <korva/KORVAMessageI.h>
#include <korva/KORVAObjectRegistryFactory.h>
#include <korva/KORVA_PortTypes.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

#include <utility>

namespace {

constexpr std::size_t mostSkipped = 1000;

/// Keeps what was passed over, and tells the caller's observer of everything.
class SkippedElements final : public KORVA_ReadingObserver {
public:
    explicit SkippedElements(KORVA_ReadingObserver* observer) : m_observer(observer) {}

    void notice(const KORVA_ReadingFinding& finding) override {
        if (m_observer != nullptr) m_observer->notice(finding);
        if (finding.kind != KORVA_ReadingFinding::eSkippedElement &&
            finding.kind != KORVA_ReadingFinding::eFurtherElement)
            return;
        ++count;
        if (elements.size() == mostSkipped) return;
        elements.push_back({finding.path, finding.line, finding.column, finding.namespaceUri,
                            finding.name, finding.reason});
    }

    std::vector<KORVA_SkippedElement> elements;
    std::size_t count = 0;

private:
    KORVA_ReadingObserver* m_observer;
};

}  // namespace

KORVAMessageI* KORVA_Envelope::getMessage() const {
    if (m_binding == nullptr) return nullptr;
    return m_kind == eReply ? &m_binding->getOutputMessage() : &m_binding->getInputMessage();
}

KORVA_EnvelopeReader::KORVA_EnvelopeReader() : KORVA_EnvelopeReader(KORVA_PortTypes::all()) {}

KORVA_EnvelopeReader::KORVA_EnvelopeReader(const std::vector<KORVAPortTypeI*>& portTypes) {
    ZEL_ASSERT(!portTypes.empty());
    m_deserializer.setPolicy(KORVA_ReadingPolicy::tolerant());
    ZEL_TRY {
        m_portTypes = portTypes;
        return;
    }
    ZEL_CATCH("KORVA_EnvelopeReader::KORVA_EnvelopeReader");
}

KORVA_EnvelopeReader::~KORVA_EnvelopeReader() = default;

KORVA_Envelope KORVA_EnvelopeReader::read(BRIMInputStream& stream) {
    ZEL_TRY {
        korva::AnyTarget target(m_portTypes);
        korva::MessageReader reader(target);
        SkippedElements skipped(m_deserializer.m_observer);
        m_deserializer.m_objectRegistry = KORVAObjectRegistryFactory::getInstance().create();
        m_deserializer.parse(stream, reader, &skipped);

        KORVA_Envelope envelope;
        envelope.m_registry = m_deserializer.m_objectRegistry;
        envelope.m_header = reader.header();
        envelope.m_fault = reader.fault();
        if (envelope.m_fault != nullptr) {
            envelope.m_kind = KORVA_Envelope::eFault;
        } else {
            envelope.m_binding = target.binding();
            envelope.m_kind = target.isReply() ? KORVA_Envelope::eReply : KORVA_Envelope::eRequest;
            envelope.m_candidates = target.candidates();
            envelope.getMessage()->setObjectRegistry(envelope.m_registry.get());
        }
        envelope.m_skipped = std::move(skipped.elements);
        envelope.m_skippedCount = skipped.count;
        return envelope;
    }
    ZEL_CATCH("KORVA_EnvelopeReader::read()");
}
