/// Brings the parts of a message to the places in its envelope that refer to them.
#pragma once

#include <korva/KORVASchemaTypeI.h>
#include <zel/ZELOwner.h>

#include <xercesc/util/XercesDefs.hpp>

#include <cstddef>

class HALYARDTKMessageReader;
class KORVAObjectRegistryI;
class KORVA_AttachmentContainerI;

/// Collects the references of one message while its envelope is read, and later gives each the
/// content of its part:
///
///     KORVA_AttachmentHandler attachments;
///     deserializer.setAttachmentHandler(&attachments);
///     deserializer.parse(envelope, ...);
///     attachments.resolveReferences(parts, *message.getObjectRegistry(), nullptr);
///
/// The objects that refer must be alive then: they belong to the message's registry. Serves one
/// message, in one thread at a time.
class KORVA_EXPORT KORVA_AttachmentHandler {
public:
    using ObjectType = KORVASchemaTypeI::ObjectType;

    /// Makes what one part is collected in, with `new`. Never gives null.
    using ContainerFactory = KORVA_AttachmentContainerI* (*)();

    /// @throws ZELOutOfMemoryError no memory is left
    KORVA_AttachmentHandler();
    /// References that nothing resolved are dropped.
    virtual ~KORVA_AttachmentHandler();
    KORVA_AttachmentHandler(const KORVA_AttachmentHandler&) = delete;
    KORVA_AttachmentHandler& operator=(const KORVA_AttachmentHandler&) = delete;

    /// The id in an `href` attribute, which stands behind "cid:" and lives as long as `href`; null
    /// if `href` doesn't begin so, or nothing follows.
    static const XMLCh* getCid(const XMLCh* href);

    /// Notes that the child `name` of `object` is to get the content of the part `contentId`. The
    /// texts are copied. Several places may refer to one part.
    /// @param type the child's type
    /// @param index what `setChildObject` gave for the value that stands there until then
    /// @throws ZELAssertError `type` is neither a text kind nor binary
    /// @throws ZELOutOfMemoryError no memory is left; nothing is noted
    void registerHref(const char* contentId, KORVASchemaTypeI& object, const char* name,
                      ObjectType type, std::size_t index);

    /// Forgets all references, without touching what they refer from: the objects of a message that
    /// could not be read may be gone. Comes before the first reference of each message.
    void clear() noexcept;

    /// Reads all parts and resolves what refers to them. A part that nothing refers to is read as
    /// it was sent, and dropped: it gets no container. Every part is given back to the reader, also
    /// when a failure passes.
    /// @param registry gets the containers and the values
    /// @param factory null stands for DefaultAttachmentContainer; for binary content, and for
    ///     large, take KORVA_SpoolingAttachmentContainer::create
    /// @return whether no reference is left
    /// @throws KORVAException 0xEA4F0001: the parts exceed a limit; 0xEA47C21F: the place takes no
    ///     such value
    /// @throws ZELAssertError the factory or the reader gave null; an array of text lost the item
    ///     that refers
    /// @throws ZELOutOfMemoryError no memory is left
    /// A ZELThrowable of the reader or of a part's stream passes through.
    bool resolveReferences(HALYARDTKMessageReader& reader, KORVAObjectRegistryI& registry,
                           ContainerFactory factory);

    /// Gives what is in `container` to all that refers to `id`, in the order in which they were
    /// registered; null is nobody's id. `container` must live as long as the values. Binary content
    /// ends at its first NUL byte unless the container streams.
    /// @throws ZELAssertError "ZEL_ASSERT(pStreamable);": the container has neither data nor a
    ///     stream
    /// @throws KORVAException 0xEA47C21F as above; the reference then stays
    /// @throws ZELOutOfMemoryError no memory is left
    void resolveAttachment(const char* id, KORVA_AttachmentContainerI& container,
                           KORVAObjectRegistryI& registry);

    /// How many references wait for their part.
    std::size_t getReferenceCount() const;

    /// How many bytes all parts of the message may have, expanded: 2^30 at first. More end in
    /// KORVAException 0xEA4F0001.
    void setMaximumBytes(unsigned long long bytes);

    /// How many times their size the compressed parts of the message may expand to, looked at when
    /// they have expanded to 4 MB in all: 200 at first. More end in KORVAException 0xEA4F0001.
    /// @throws ZELAssertError `ratio` is 0
    void setMaximumInflateRatio(unsigned long long ratio);

private:
    class Intake;
    struct References;

    void resolvePart(HALYARDTKMessageReader& reader, KORVAObjectRegistryI& registry,
                     ContainerFactory factory, Intake& intake);

    ZELOwner<References> m_references;
    unsigned long long m_maximumBytes = 1ULL << 30U;
    unsigned long long m_maximumInflateRatio = 200;
};
