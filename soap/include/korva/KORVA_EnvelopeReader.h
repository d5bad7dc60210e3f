/// The reader of envelopes of which nothing is known.
#pragma once

#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVAPortTypeBinding.h>
#include <korva/KORVASOAPMessageIDeserializer.h>
#include <korva/KORVA_Operation.h>
#include <zel/ZELSmartPointer.h>

#include <cstddef>
#include <string>
#include <vector>

class BRIMInputStream;
class KORVAHalyardHeader;
class KORVAMessageI;
class KORVAPortTypeI;
class KORVASOAPFault;

/// An element that was passed over, as KORVA_ReadingFinding tells it.
struct KORVA_SkippedElement {
    std::string path;
    unsigned long long line;
    unsigned long long column;
    std::string namespaceUri;
    std::string name;
    std::string reason;
};

/// What an envelope is. Keeps all that was read alive; copies share it.
class KORVA_EXPORT KORVA_Envelope {
public:
    enum Kind { eRequest, eReply, eFault };

    Kind getKind() const { return m_kind; }

    /// The operation, whose input or output message was read; null for a fault.
    KORVAPortTypeBinding* getBinding() const { return m_binding.get(); }

    /// The message that was read; null for a fault.
    KORVAMessageI* getMessage() const;

    /// Null for a message.
    KORVASOAPFault* getFault() const { return m_fault; }

    /// The bus header, or null.
    KORVAHalyardHeader* getHeader() const { return m_header; }

    /// The owner of all that was read.
    KORVAObjectRegistryI& getObjectRegistry() const { return *m_registry; }

    /// The operations whose replies have this element and take these parameters. The first is that
    /// of the binding; the caller knows which one was called. Empty for requests and faults.
    const std::vector<KORVA_Operation>& getCandidates() const { return m_candidates; }

    /// What was passed over: the first thousand of them.
    const std::vector<KORVA_SkippedElement>& getSkipped() const { return m_skipped; }

    /// How many elements were passed over, without those that they hold.
    std::size_t getSkippedCount() const { return m_skippedCount; }

private:
    friend class KORVA_EnvelopeReader;

    KORVA_Envelope() = default;

    Kind m_kind = eRequest;
    ZELSmartPointer<KORVAObjectRegistryI> m_registry;
    ZELSmartPointer<KORVAPortTypeBinding> m_binding;
    KORVASOAPFault* m_fault = nullptr;
    KORVAHalyardHeader* m_header = nullptr;
    std::vector<KORVA_Operation> m_candidates;
    std::vector<KORVA_SkippedElement> m_skipped;
    std::size_t m_skippedCount = 0;
};

/// Reads requests, replies and faults, and tells which it was. The namespace and the name of the
/// first element of the body decide: an operation's name is its request; the name with "Response"
/// behind it, or that of the reply's message, is its reply. Reads what real peers send; serves one
/// call at a time, and may be used again after a failure.
class KORVA_EXPORT KORVA_EnvelopeReader {
public:
    /// Reads messages of all port types.
    /// @throws ZELOutOfMemoryError no memory is left
    KORVA_EnvelopeReader();

    /// Reads messages of these port types, and of the first of two that have one namespace. Replies
    /// are known of those of the schema, see KORVA_PortTypes.
    /// @throws ZELAssertError `portTypes` is empty
    /// @throws ZELOutOfMemoryError no memory is left
    explicit KORVA_EnvelopeReader(const std::vector<KORVAPortTypeI*>& portTypes);

    ~KORVA_EnvelopeReader();
    KORVA_EnvelopeReader(const KORVA_EnvelopeReader&) = delete;
    KORVA_EnvelopeReader& operator=(const KORVA_EnvelopeReader&) = delete;

    /// What reads: here are limits, handler of attachments, observer and policy, which is
    /// KORVA_ReadingPolicy::tolerant() at first.
    KORVASOAPMessageIDeserializer& deserializer() { return m_deserializer; }

    /// Reads an envelope. A fault is no failure here.
    /// @throws KORVAException as KORVASOAPMessageIDeserializerI::parse at the server, but for
    ///     faults; also 0xEA4F0012 to 0xEA4F0014: a reference leads to no element, to more than
    ///     one, or back to itself
    /// @throws ZELAssertError the body has no operation; or a precondition broke while reading
    /// @throws ZELOutOfMemoryError no memory is left
    /// @throws ZELStdExceptionError any other standard exception
    /// A ZELThrowable of the stream or the observer passes through.
    KORVA_Envelope read(BRIMInputStream& stream);

private:
    std::vector<KORVAPortTypeI*> m_portTypes;
    KORVASOAPMessageIDeserializer m_deserializer;
};
