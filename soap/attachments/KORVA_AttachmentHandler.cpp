#include "korva/KORVA_AttachmentHandler.h"

#include "core/Names.h"
#include "core/NumberedError.h"
#include "soap/read/TextStore.h"
#include "soap/read/Utf16.h"

#include <brim/BRIMGZIPInputStream.h>
#include <halyard/HALYARDTKMessagePart.h>
#include <halyard/HALYARDTKMessageReader.h>
#include <i18n/KORVAMessageId.h>
#include <korva/DefaultAttachmentContainer.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_CharStreamable.h>
#include <korva/KORVA_EnumObject.h>
#include <korva/KORVA_HrefReference.h>
#include <korva/KORVA_SpoolingAttachmentContainer.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using Factory = KORVASchemaTypesFactory;

namespace {

constexpr const char* resolveLabel = "KORVA_AttachmentHandler::resolveReferences";

constexpr std::size_t pieceSize = 2048;

/// How many bytes all parts may expand to before their ratio is looked at: few bytes may well
/// expand to many.
constexpr unsigned long long smallestForRatio = 4ULL << 20U;

/// How many bytes of all parts stay in memory when their containers spool.
constexpr std::size_t mostInMemory = 4U << 20U;

KORVA_AttachmentContainerI* makeDefaultContainer() {
    return new DefaultAttachmentContainer;
}

/// Gives a part back, whatever happens meanwhile.
class BorrowedPart {
public:
    explicit BorrowedPart(HALYARDTKMessageReader& reader)
        : m_reader(reader), m_part(reader.getNextPart()) {
        ZEL_ASSERT(m_part);
    }
    BorrowedPart(const BorrowedPart&) = delete;
    BorrowedPart& operator=(const BorrowedPart&) = delete;
    ~BorrowedPart() {
        try {
            giveBack();
        } catch (...) {  // NOLINT(bugprone-empty-catch): another failure is on its way
        }
    }

    void giveBack() {
        if (m_part != nullptr) m_reader.releasePart(std::exchange(m_part, nullptr));
    }

    HALYARDTKMessagePart* operator->() const { return m_part; }

private:
    HALYARDTKMessageReader& m_reader;
    HALYARDTKMessagePart* m_part;
};

const KORVA_Streamable& streamableOf(KORVA_AttachmentContainerI& container) {
    const KORVA_Streamable* const pStreamable = container.getStreamable();
    ZEL_ASSERT(pStreamable);
    return *pStreamable;
}

/// The content as the model holds text.
const char* textOf(KORVA_AttachmentContainerI& container, KORVAObjectRegistryI& registry) {
    const char* const data = container.getData();
    // Bytes from outside that look like a char streamable must not be taken for one.
    if (data != nullptr && !KORVA_CharStreamable::isCharStreamable(data)) return data;
    auto* const text = registry.make<KORVA_CharStreamable>();
    if (data != nullptr)
        text->initialize(data, false);
    else
        text->initialize(streamableOf(container), false);
    return text->asCharStar();
}

void setText(const KORVA_HrefReference& reference, const char* value) {
    KORVASchemaTypeI& object = reference.getObject();
    // An enumeration takes words only, and does not tell so of a text that is streamed.
    if (dynamic_cast<const KORVA_EnumObject*>(&object) != nullptr)
        Factory::typeError(korva::xmlName(object.getObjectType()), reference.getName(),
                           reference.getType(), reference.getType());
    char* const text = const_cast<char*>(value);
    std::size_t index = reference.getIndex();
    if (Factory::isArrayType(object.getObjectType())) {
        // Arrays of text take their items as buffers only.
        korva::TextView view(text, std::string_view(text).size());
        object.setChildObject(reference.getName(), static_cast<ZELByteBuffer*>(&view),
                              reference.getType(), &index);
    } else {
        object.setChildObject(reference.getName(), text, KORVASchemaTypeI::eCharStreamable, &index);
    }
}

KORVAXSBase64Binary* binaryOf(KORVA_AttachmentContainerI& container,
                              KORVAObjectRegistryI& registry) {
    auto* const value = registry.make<KORVAXSBase64Binary>();
    if (const char* const data = container.getData())
        value->reference(data, 0);
    else
        value->reference(streamableOf(container));
    return value;
}

void resolve(const KORVA_HrefReference& reference, KORVA_AttachmentContainerI& container,
             KORVAObjectRegistryI& registry) {
    if (Factory::isString(reference.getType())) {
        setText(reference, textOf(container, registry));
    } else {
        std::size_t index = reference.getIndex();
        reference.getObject().setChildObject(reference.getName(), binaryOf(container, registry),
                                             reference.getType(), &index);
    }
}

}  // namespace

/// Takes in the parts of one message as long as they keep to the limits.
class KORVA_AttachmentHandler::Intake {
public:
    Intake(unsigned long long maximumBytes, unsigned long long maximumRatio)
        : m_maximumBytes(maximumBytes), m_maximumRatio(maximumRatio) {}

    void read(BRIMInputStream& stream, KORVA_AttachmentContainerI& container) {
        readPieces(stream,
                   [&](const char* piece, std::size_t length) { container.append(piece, length); });
    }

    void expand(BRIMInputStream& stream, KORVA_AttachmentContainerI& container) {
        BRIMGZIPInputStream gzip(stream);
        const unsigned long long expanded = m_expanded;
        const unsigned long long compressed = m_compressed;
        readPieces(gzip, [&](const char* piece, std::size_t length) {
            m_expanded = expanded + gzip.expandedBytes();
            m_compressed = compressed + gzip.compressedBytes();
            if (m_expanded > smallestForRatio && m_expanded / m_maximumRatio > m_compressed)
                refuse("the ratio by which an attachment expands", m_maximumRatio,
                       "KORVA_AttachmentHandler::setMaximumInflateRatio");
            container.append(piece, length);
        });
    }

    /// Reads what nobody needs as it was sent.
    void drop(BRIMInputStream& stream) {
        readPieces(stream, [](const char*, std::size_t) {});
    }

    /// Lets the containers that spool have one file.
    void begin(KORVA_AttachmentContainerI& container) {
        m_spooling = dynamic_cast<KORVA_SpoolingAttachmentContainer*>(&container);
        if (m_spooling == nullptr) return;
        if (m_firstSpooling == nullptr)
            m_firstSpooling = m_spooling;
        else if (!m_spooling->isSpooled())
            m_spooling->shareFile(*m_firstSpooling);
    }

    void finish() {
        if (m_spooling != nullptr) m_spooling->finish(mostInMemory);
    }

private:
    template <class Take>
    void readPieces(BRIMInputStream& stream, Take take) {
        char piece[pieceSize];
        for (;;) {
            const long long count = stream.read(piece, sizeof piece);
            if (count <= 0) return;
            const auto length = static_cast<unsigned long long>(count);
            if (length > m_maximumBytes - m_bytes)
                refuse("the bytes of all attachments", m_maximumBytes,
                       "KORVA_AttachmentHandler::setMaximumBytes");
            m_bytes += length;
            take(piece, static_cast<std::size_t>(count));
        }
    }

    [[noreturn]] static void refuse(const char* limit, unsigned long long value,
                                    const char* setter) {
        KORVA_RAISE(eKORVA_LimitExceeded, resolveLabel, limit, std::to_string(value).c_str(),
                    setter);
    }

    unsigned long long m_maximumBytes;
    unsigned long long m_maximumRatio;
    unsigned long long m_bytes = 0;
    unsigned long long m_expanded = 0;    ///< of all parts that are compressed
    unsigned long long m_compressed = 0;  ///< what these took
    KORVA_SpoolingAttachmentContainer* m_firstSpooling = nullptr;  ///< which the registry owns
    KORVA_SpoolingAttachmentContainer* m_spooling = nullptr;       ///< that is being filled
};

struct KORVA_AttachmentHandler::References {
    /// By id, so that a message of many parts isn't searched for each; those of one id in their
    /// order.
    std::map<std::string, std::vector<std::unique_ptr<KORVA_HrefReference>>, std::less<>> byId;
    std::size_t count = 0;
};

KORVA_AttachmentHandler::KORVA_AttachmentHandler() {
    ZEL_TRY {
        m_references.reset(new References);
        return;
    }
    ZEL_CATCH("KORVA_AttachmentHandler::KORVA_AttachmentHandler");
}

KORVA_AttachmentHandler::~KORVA_AttachmentHandler() = default;

const XMLCh* KORVA_AttachmentHandler::getCid(const XMLCh* href) {
    constexpr std::string_view scheme = "cid:";
    if (href == nullptr) return nullptr;
    return korva::startsWith(href, scheme) && href[scheme.size()] != 0 ? href + scheme.size()
                                                                       : nullptr;
}

void KORVA_AttachmentHandler::registerHref(const char* contentId, KORVASchemaTypeI& object,
                                           const char* name, ObjectType type, std::size_t index) {
    ZEL_ASSERT(Factory::isString(type) || Factory::isBase64(type));
    ZEL_TRY {
        auto reference =
            std::make_unique<KORVA_HrefReference>(contentId, &object, name, type, index);
        // An id without references does no harm, should the vector not grow.
        m_references->byId[reference->getContentId()].push_back(std::move(reference));
        ++m_references->count;
        return;
    }
    ZEL_CATCH("KORVA_AttachmentHandler::registerHref");
}

void KORVA_AttachmentHandler::clear() noexcept {
    m_references->byId.clear();
    m_references->count = 0;
}

bool KORVA_AttachmentHandler::resolveReferences(HALYARDTKMessageReader& reader,
                                                KORVAObjectRegistryI& registry,
                                                ContainerFactory factory) {
    ZEL_TRY {
        if (factory == nullptr) factory = makeDefaultContainer;
        Intake intake(m_maximumBytes, m_maximumInflateRatio);
        if (reader.hasAttachments())
            while (reader.hasNextPart())
                resolvePart(reader, registry, factory, intake);
        return m_references->count == 0;
    }
    ZEL_CATCH("KORVA_AttachmentHandler::resolveReferences");
}

void KORVA_AttachmentHandler::resolvePart(HALYARDTKMessageReader& reader,
                                          KORVAObjectRegistryI& registry, ContainerFactory factory,
                                          Intake& intake) {
    BorrowedPart part(reader);
    // The text need not outlive the reading of the content.
    std::optional<std::string> id;
    if (const char* const contentId = part->getContentId()) {
        std::string_view text = contentId;
        if (!text.empty() && text.front() == '<') text.remove_prefix(1);
        if (!text.empty() && text.back() == '>') text.remove_suffix(1);
        id = text;
    }
    if (!id || !m_references->byId.contains(*id)) {
        intake.drop(part->getStream());
        part.giveBack();
        return;
    }
    std::unique_ptr<KORVA_AttachmentContainerI> made(factory());
    ZEL_ASSERT(made);
    KORVA_AttachmentContainerI& container = *registry.own(std::move(made));
    intake.begin(container);
    BRIMInputStream& stream = part->getStream();
    if (part->isCompressed())
        intake.expand(stream, container);
    else
        intake.read(stream, container);
    intake.finish();
    resolveAttachment(id->c_str(), container, registry);
    part.giveBack();
}

void KORVA_AttachmentHandler::resolveAttachment(const char* id,
                                                KORVA_AttachmentContainerI& container,
                                                KORVAObjectRegistryI& registry) {
    if (id == nullptr) return;
    const auto place = m_references->byId.find(std::string_view(id));
    if (place == m_references->byId.end()) return;
    auto& references = place->second;
    std::size_t done = 0;
    ZEL_TRY {
        try {
            for (; done != references.size(); ++done)
                resolve(*references[done], container, registry);
        } catch (...) {
            references.erase(references.begin(),
                             references.begin() + static_cast<std::ptrdiff_t>(done));
            m_references->count -= done;
            throw;
        }
        m_references->byId.erase(place);
        m_references->count -= done;
        return;
    }
    ZEL_CATCH("KORVA_AttachmentHandler::resolveAttachment");
}

std::size_t KORVA_AttachmentHandler::getReferenceCount() const {
    return m_references->count;
}

void KORVA_AttachmentHandler::setMaximumBytes(unsigned long long bytes) {
    m_maximumBytes = bytes;
}

void KORVA_AttachmentHandler::setMaximumInflateRatio(unsigned long long ratio) {
    ZEL_ASSERT(ratio > 0);
    m_maximumInflateRatio = ratio;
}
