#include "soap/read/ValueReader.h"

#include "core/Fields.h"
#include "core/Names.h"
#include "core/NumberedError.h"
#include "soap/attachments/AttachedValue.h"
#include "soap/read/ReadingContext.h"
#include "soap/read/TypeAttributes.h"
#include "types/Numbers.h"
#include "types/PlainTypes.h"

#include <brim/BRIMBase64InputStream.h>
#include <brim/BRIMInputStream.h>
#include <i18n/KORVAMessageId.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_AttachmentHandler.h>
#include <korva/KORVA_String.h>
#include <zel/ZELAssert.h>
#include <zel/ZELAssertError.h>
#include <zel/ZELOwner.h>
#include <zel/ZELThrow.h>

#include <algorithm>
#include <cstring>
#include <memory>

namespace korva {

namespace {

using Factory = KORVASchemaTypesFactory;

// The names under which failures are told are published.
constexpr const char* startElementLabel = "KORVASchemaTypeIContentHandler::startElement";
constexpr const char* charactersLabel = "KORVASchemaTypeIContentHandler::characters";
constexpr const char* checkTypeLabel = "KORVASchemaTypeIContentHandler::checkType()";

/// From this size on a text keeps the buffer that it was collected in.
constexpr std::size_t largeText = 4096;
/// From this size on that buffer is kept as it is, with its unused end.
constexpr std::size_t hugeText = 1 << 20;

/// How much of a binary is collected before it is decoded, unless it ends.
constexpr std::size_t largeEncoding = 65536;

const char* xsiType(ObjectType type) {
    return Factory::getInstance().objectTypeToXSIType(type);
}

/// @param object of a generated type, otherwise not looked at
void checkType(const char* name, const KORVASchemaTypeI* object, ObjectType type,
               ObjectType expected) {
    if (type == expected) return;
    if (!Factory::isGeneratedType(type))
        KORVA_RAISE(eKORVA_WrongSimpleType, checkTypeLabel, name, xsiType(expected), xsiType(type));
    if (!object->isa(expected))
        KORVA_RAISE(eKORVA_WrongObjectType, checkTypeLabel, name, xsiType(expected), xsiType(type));
}

}  // namespace

// ----- binaries -----

/// Decodes a text in its place, as far as it is there: the bytes stand before what is not decoded
/// yet.
class ValueReader::Decoding {
public:
    /// Decodes what may be decoded without looking behind the text.
    void decode(ZELByteBuffer& text) {
        m_encoded.text = {text.str() + m_length, text.pcount() - m_length};
        while (m_encoded.text.size() >= step && hasGroups(m_encoded.text.substr(0, step)))
            decodeStep(text);
        const std::string_view rest = m_encoded.text;
        std::memmove(bytes(text) + m_length, rest.data(), rest.size());
        text.truncate(m_length + rest.size());
    }

    /// Decodes the rest.
    void finish(ZELByteBuffer& text) {
        m_encoded.text = {text.str() + m_length, text.pcount() - m_length};
        while (decodeStep(text) != 0) {
        }
        text.truncate(m_length);
    }

private:
    /// What the decoder takes at once, or more.
    static constexpr std::size_t step = 16384;

    struct Encoded final : BRIMInputStream {
        long long read(char* buffer, std::size_t size) override {
            const std::size_t count = std::min(size, text.size());
            std::memcpy(buffer, text.data(), count);
            text.remove_prefix(count);
            return static_cast<long long>(count);
        }

        std::string_view text;
    };

    static char* bytes(ZELByteBuffer& text) { return const_cast<char*>(text.str()); }

    /// Whether the decoder is sure to give a byte for `piece`, and so asks for no more.
    static bool hasGroups(std::string_view piece) {
        std::size_t count = 0;
        for (const char c : piece)
            if (static_cast<unsigned char>(c) > ' ' && ++count == 8) return true;
        return false;
    }

    std::size_t decodeStep(ZELByteBuffer& text) {
        // The decoder has always read more than it gave.
        const long long count = m_decoder.read(bytes(text) + m_length, text.pcount() - m_length);
        m_length += static_cast<std::size_t>(count);
        return static_cast<std::size_t>(count);
    }

    Encoded m_encoded;
    BRIMBase64InputStream m_decoder{m_encoded};
    std::size_t m_length = 0;  ///< of what is decoded
};

ValueReader::ValueReader(ReadingContext& context) : m_context(context) {}

ValueReader::~ValueReader() = default;

const ValueReader::Frame& ValueReader::top() const {
    ZEL_ASSERT(m_objStack.size() > 0);
    return m_objStack.back();
}

ValueReader::Frame& ValueReader::top() {
    ZEL_ASSERT(m_objStack.size() > 0);
    return m_objStack.back();
}

ObjectType ValueReader::type() const {
    return isSkipping() ? KORVASchemaTypeI::e_Unknown : top().type;
}

void* ValueReader::value() {
    if (m_objStack.empty() || isSkipping()) return nullptr;
    Frame& frame = m_objStack.back();
    // The end of a text or binary is not told here, so there is no later place for this.
    if (frame.refers && (frame.kind == Kind::Text || frame.kind == Kind::Binary)) {
        frame.value = makeAttachedValue(frame.type);
        frame.kind = Kind::Made;
        frame.refers = false;
    }
    makeValue(frame);
    return frame.kind == Kind::Made && Factory::isString(frame.type) && !isRoot(frame)
               ? nullptr
               : frame.value;
}

void ValueReader::assertNothingIsOpen() const {
    ZEL_ASSERT_NAMED(m_objStack.size() == 0, "There are objects left on the object stack.");
}

// ----- starts of elements -----

ValueReader::Frame& ValueReader::push(Kind kind, const char* name, ObjectType type, void* value) {
    return m_objStack.emplace_back(Frame{kind, false, type, name, value, nullptr, nullptr, 0});
}

/// A frame for a new value of this type. Plain values are made when their text is there.
ValueReader::Frame& ValueReader::pushNew(const char* name, ObjectType objType) {
    ZEL_ASSERT_NAMED(objType != KORVASchemaTypeI::e_Unknown, "Received invalid objType.");
    if (Factory::isGeneratedType(objType)) return pushObject(name, objType, makeObject(objType));
    if (Factory::isString(objType)) return push(Kind::Text, name, objType);
    if (Factory::isBase64(objType)) return push(Kind::Binary, name, objType);
    return push(Kind::Number, name, objType);
}

ValueReader::Frame& ValueReader::pushObject(const char* name, ObjectType type,
                                            KORVASchemaTypeI* object) {
    const TypeDescriptor& row = *findType(type);
    if (row.fields != nullptr) {
        Frame& frame = push(Kind::Fields, name, type, object);
        frame.fields = row.fields;
        return frame;
    }
    const bool isArray = row.elementType != KORVASchemaTypeI::e_Unknown;
    return push(isArray ? Kind::Items : Kind::Content, name, type, object);
}

void ValueReader::skip() {
    push(Kind::Skipped, nullptr, KORVASchemaTypeI::e_Unknown).length = 1;
}

/// The newest frame is ready for its text, or for the attachment that it stands for.
void ValueReader::startText(const TypeAttributes& told) {
    m_context.text.reset();
    m_decoding.reset();
    m_decodingSize = largeEncoding;
    if (told.contentId.empty()) return;
    m_contentId = told.contentId;
    m_objStack.back().refers = true;
}

void ValueReader::startRoot(const Element& element, ObjectType expectedType) {
    const char* const localname = element.localName;
    // clang-format off
    ZEL_ASSERT((localname != NULL) && (strlen( localname ) > 0));
    // clang-format on
    const TypeAttributes told(element, m_context.attributeNamespaces);
    ObjectType type = m_context.types.resolve(told, *m_context.mapping, localname);
    if (type == KORVASchemaTypeI::e_Unknown) type = expectedType;
    if (type == KORVASchemaTypeI::e_Unknown) return skip();
    if (told.isNil) {
        push(Kind::Nil, localname, type);
        return;
    }
    Frame& root = pushNew(localname, type);
    if (root.kind == Kind::Number) root.value = makeNumberOfRoot(type);
    if (expectedType != KORVASchemaTypeI::e_Unknown)
        checkType(localname, objectOf(root), type, expectedType);
    startText(told);
}

void ValueReader::startDocumentRoot(const Element& element) {
    const TypeAttributes told(element, m_context.attributeNamespaces);
    if (told.isNil) {
        push(Kind::Nil, element.localName, KORVASchemaTypeI::e_Unknown);
        return;
    }
    const ObjectType type = m_context.types.resolve(told, *m_context.mapping, element.localName);
    if (type == KORVASchemaTypeI::e_Unknown) return skip();
    pushNew(element.localName, type);
    startText(told);
}

void ValueReader::startElement(const Element& element) {
    Frame& parent = top();
    const char* const name = element.localName;
    if (parent.kind == Kind::Skipped) {
        ++parent.length;
        return;
    }
    if (parent.kind == Kind::Nil) KORVA_RAISE(eKORVA_ElementInNil, startElementLabel, parent.name);
    if (parent.refers)
        KORVA_RAISE(eKORVA_ElementInReference, startElementLabel, parent.name, m_contentId.c_str());
    const TypeAttributes told(element, m_context.attributeNamespaces);
    if (told.isNil) {
        push(Kind::Nil, name, KORVASchemaTypeI::e_Unknown);
        return;
    }
    bool isKnown = true;
    switch (parent.kind) {
        case Kind::Fields: isKnown = startField(name, told); break;
        case Kind::Items: isKnown = startItem(name, told); break;
        case Kind::Asked: startAsked(name, told); break;
        default: KORVA_RAISE(eKORVA_ElementInSimpleValue, startElementLabel, name);
    }
    if (isKnown)
        startText(told);
    else
        skip();
}

bool ValueReader::startField(const char* name, const TypeAttributes& told) {
    const Frame& parent = m_objStack.back();
    const FieldDescriptor* const field = findField(*parent.fields, nameCrc(name)).field;
    if (field == nullptr) return false;
    const ObjectType type = m_context.types.resolve(told, *m_context.mapping, name);
    startFieldOf(*field, *ClassDescriptor::recordOf(*objectOf(parent)), name, type);
    return true;
}

void ValueReader::startFieldOf(const FieldDescriptor& field, Record& record, const char* name,
                               ObjectType xsiType) {
    void* const present = readField(record, field, false);
    // What the parent holds itself, it is: there the wire's type plays no part.
    if (field.kind == FieldKind::EmbeddedArray) {
        push(Kind::Items, name, field.type, present);
        return;
    }
    if (present != nullptr) {
        if (!Factory::isArrayType(field.type))
            KORVA_RAISE(eKORVA_ElementTwice, startElementLabel, m_objStack.back().name, name);
        push(Kind::Items, name, field.type, present);
        return;
    }
    if (types::isValue(field.kind)) {
        push(Kind::Number, name, field.type, readField(record, field, true));
        return;
    }
    const ObjectType type = xsiType != KORVASchemaTypeI::e_Unknown ? xsiType : field.type;
    Frame& child = pushNew(name, type);
    if (xsiType != KORVASchemaTypeI::e_Unknown) checkType(name, objectOf(child), type, field.type);
    child.field = &field;
    if (field.kind == FieldKind::Object) store(record, field.offset, child.value);
}

bool ValueReader::startItem(const char* name, const TypeAttributes& told) {
    const Frame& parent = m_objStack.back();
    KORVASchemaTypeI& array = *objectOf(parent);
    const ObjectType declared = array.getChildType(name);
    ObjectType type = m_context.types.resolve(told, *m_context.mapping, name);
    const bool isUndocumented = parent.type == KORVASchemaTypeI::eKORVAUndocumentedFaultDetailArray;
    if (type == KORVASchemaTypeI::e_Unknown) {
        // Details without a type are the undocumented ones of a fault.
        if (isUndocumented || parent.type == KORVASchemaTypeI::eKORVAFaultDetailArray) {
            startUndocumentedDetail();
            return true;
        }
        type = declared;
    }
    // A fault has details of one kind, and whoever sent two still sent a fault.
    if (isUndocumented && type == KORVASchemaTypeI::eKORVAFaultDetail) return false;

    const Frame& item = pushNew(name, type);
    const bool isObject = Factory::isGeneratedType(type);
    const bool fits = isObject ? Factory::isGeneratedType(declared) && objectOf(item)->isa(declared)
                               : type == declared;
    if (!fits)
        KORVA_RAISE(eKORVA_WrongItemType, startElementLabel, xsiType(type), xsiType(declared));
    if (isObject) array.setChildObject(name, item.value, type, nullptr);
    return true;
}

void ValueReader::startUndocumentedDetail() {
    ZEL_ASSERT((m_objStack.size() == 1));
    Frame& details = m_objStack.front();
    if (details.type != KORVASchemaTypeI::eKORVAUndocumentedFaultDetailArray) {
        details.value = makeObject(KORVASchemaTypeI::eKORVAUndocumentedFaultDetailArray);
        details.type = KORVASchemaTypeI::eKORVAUndocumentedFaultDetailArray;
    }
    constexpr ObjectType type = KORVASchemaTypeI::eKORVAUndocumentedFaultDetail;
    KORVASchemaTypeI* const detail = makeObject(type);
    objectOf(details)->setChildObject(details.name, detail, type, nullptr);
    push(Kind::Asked, nullptr, type, detail);
}

void ValueReader::startAsked(const char* name, const TypeAttributes& told) {
    const Frame& parent = m_objStack.back();
    KORVASchemaTypeI& object = *objectOf(parent);
    const ObjectType declared = object.getChildType(name);
    const ObjectType xsiType = m_context.types.resolve(told, *m_context.mapping, name);
    if (std::strcmp(name, "message") == 0) return startDetailMessage(name);
    if (object.getChildObject(name, false) != nullptr)
        KORVA_RAISE(eKORVA_ElementTwice, startElementLabel, parent.name, name);
    const ObjectType type = xsiType != KORVASchemaTypeI::e_Unknown ? xsiType : declared;
    const Frame& child = pushNew(name, type);
    checkType(name, objectOf(child), type, declared);
}

/// A message of an undocumented detail, of which there may be many.
void ValueReader::startDetailMessage(const char* name) {
    constexpr ObjectType type = KORVASchemaTypeI::eKORVAMessage;
    KORVASchemaTypeI* const message = makeObject(type);
    objectOf(m_objStack.back())->setChildObject(name, message, type, nullptr);
    pushObject(nullptr, type, message);
}

/// A new object that the registry owns.
KORVASchemaTypeI* ValueReader::makeObject(ObjectType type) {
    const TypeDescriptor* const row = findType(type);
    return m_context.registry->own(ZELOwner<KORVASchemaTypeI>(
        row != nullptr && row->create != nullptr ? row->create()
                                                 : Factory::getInstance().create(type)));
}

/// A number that the registry owns: a root has no parent that holds it.
void* ValueReader::makeNumberOfRoot(ObjectType type) {
    void* number = nullptr;
    types::visitValue(types::kindOf(type),
                      [&](auto value) { number = m_context.registry->make<decltype(value)>(); });
    return number;
}

// ----- ends of elements -----

KORVASchemaTypeI* ValueReader::endElement() {
    Frame& ending = top();
    if (ending.kind == Kind::Skipped) {
        if (--ending.length == 0) m_objStack.pop_back();
        return nullptr;
    }
    makeValue(ending);
    const Frame child = ending;
    m_objStack.pop_back();
    if (child.kind == Kind::Nil) return nullptr;
    if (!Factory::isGeneratedType(child.type)) {
        setOnParent(child);
        return nullptr;
    }
    return m_objStack.empty() ? objectOf(child) : nullptr;
}

void ValueReader::setOnParent(const Frame& child) {
    if (child.kind == Kind::Number) {
        // A root's has its place, or is not asked for.
        if (child.value == nullptr && !m_objStack.empty())
            setNumber(*objectOf(m_objStack.back()), child);
        return;
    }
    const Frame& parent = top();
    std::size_t position = 0;
    if (child.field != nullptr)
        store(*ClassDescriptor::recordOf(*objectOf(parent)), child.field->offset, child.value);
    else if (Factory::isString(child.type))
        position = setText(parent, child);
    else
        position = objectOf(parent)->setChildObject(child.name, child.value, child.type, nullptr);
    if (!child.refers) return;
    KORVA_AttachmentHandler& handler = requireHandler([](const auto* m_attachmentHandler) {
        // clang-format off
        ZEL_ASSERT_NAMED(m_attachmentHandler, "KORVASchemaTypeIContentHandler::endElement - Handler not configured to process href attachments. );");
        // clang-format on
    });
    handler.registerHref(m_contentId.c_str(), *objectOf(parent), child.name, child.type, position);
}

std::size_t ValueReader::setText(const Frame& parent, const Frame& child) {
    TextView text(static_cast<char*>(child.value), child.length);
    return objectOf(parent)->setChildObject(child.name, static_cast<ZELByteBuffer*>(&text),
                                            child.type, nullptr);
}

// ----- text -----

void ValueReader::append(std::string_view piece) {
    ZELByteBuffer& buffer = m_context.text;
    // A long text is moved less often than the buffer would by itself.
    if (buffer.capacity() - buffer.pcount() < piece.size() && buffer.pcount() >= largeText)
        buffer.reserve(2 * buffer.capacity() + piece.size());
    buffer.appendChars(piece.data(), piece.size());
    if (buffer.pcount() >= m_decodingSize && m_objStack.back().kind == Kind::Binary) decodeAhead();
}

/// Text that is nobody's may stand in most elements.
void ValueReader::refuseText() const {
    if (m_objStack.empty()) return;
    const Frame& frame = m_objStack.back();
    if (frame.kind == Kind::Nil) KORVA_RAISE(eKORVA_TextInNil, charactersLabel, frame.name);
    if (frame.refers)
        KORVA_RAISE(eKORVA_TextInReference, charactersLabel, frame.name, m_contentId.c_str());
}

/// Ends the text of an element, if it is made of one.
void ValueReader::makeValue(Frame& frame) {
    switch (frame.kind) {
        case Kind::Text: makeText(frame); break;
        case Kind::Number:
            // An item's has no place yet.
            if (frame.value != nullptr || isRoot(frame)) makeNumber(frame, frame.value);
            return;
        case Kind::Binary: makeBinary(frame); break;
        case Kind::Content: makeContent(frame); break;
        case Kind::Fields:
        case Kind::Items:
        case Kind::Asked:
            if (frame.refers) registerReference(*objectOf(frame), 0);
            return;
        default: return;
    }
    m_context.text.reset();
    frame.kind = Kind::Made;
}

void ValueReader::makeText(Frame& frame) {
    frame.length = m_context.text.pcount();
    if (isRoot(frame))
        frame.value = takeText()->buffer();
    else
        frame.value = keepText();
}

/// The text that was collected, where it lives as long as what the registry owns.
char* ValueReader::keepText() {
    const ZELByteBuffer& text = m_context.text;
    if (text.pcount() >= largeText) return const_cast<char*>(takeText()->buffer()->str());
    return m_context.texts.keep(text.str(), text.pcount(), *m_context.registry);
}

/// The text that was collected, as a value that the registry owns.
KORVA_String* ValueReader::takeText() {
    auto* const string = m_context.registry->make<KORVA_String>();
    *string->buffer() = std::move(m_context.text);
    // Unused pages of a large buffer cost nothing; a small one would waste half of itself.
    if (string->pcount() < hugeText) string->buffer()->shrinkToFit();
    return string;
}

/// @param place of the number, or null if nobody asks for it
void ValueReader::makeNumber(const Frame& frame, void* place) {
    const std::string_view text = types::trimmed({m_context.text.str(), m_context.text.pcount()});
    types::visitValue(types::kindOf(frame.type), [&](auto value) {
        using Value = decltype(value);
        if (!types::parse(text, value))
            raise({{eKORVA_BadText, {frame.name, types::valueName<Value>}},
                   {eKORVA_BadTextIs, {std::string(text).c_str()}}},
                  ZEL_LOCATION, charactersLabel);
        if (place != nullptr) *static_cast<Value*>(place) = value;
    });
    m_context.text.reset();
}

/// A number that an array copies.
std::size_t ValueReader::setNumber(KORVASchemaTypeI& parent, const Frame& child) {
    std::size_t position = 0;
    types::visitValue(types::kindOf(child.type), [&](auto value) {
        makeNumber(child, &value);
        position = parent.setChildObject(child.name, &value, child.type, nullptr);
    });
    return position;
}

/// Decodes what has come of a large binary, so that its text is never there as a whole.
void ValueReader::decodeAhead() {
    if (m_decoding == nullptr) m_decoding = std::make_unique<Decoding>();
    m_decoding->decode(m_context.text);
    m_decodingSize = m_context.text.pcount() + largeEncoding;
}

void ValueReader::makeBinary(Frame& frame) {
    ZELByteBuffer& bytes = m_context.text;
    if (m_decoding != nullptr)
        m_decoding->finish(bytes);
    else
        Decoding().finish(bytes);
    const std::size_t length = bytes.pcount();
    auto* const value = m_context.registry->make<KORVAXSBase64Binary>();
    frame.value = value;
    if (length >= largeText) {
        if (length < hugeText) bytes.shrinkToFit();
        value->adopt(bytes);
    } else if (length != 0) {
        value->append(bytes.str(), length);
    }
}

void ValueReader::makeContent(Frame& frame) {
    KORVASchemaTypeI* const currentObj = objectOf(frame);
    ZEL_ASSERT(currentObj);
    const std::size_t length = m_context.text.pcount();
    TextView view(keepText(), length);
    const std::size_t position = currentObj->setChildObject("", static_cast<ZELByteBuffer*>(&view),
                                                            KORVASchemaTypeI::eString, nullptr);
    if (frame.refers) registerReference(*currentObj, position);
}

/// The attachment handler. The assertion's text is published, so that the advice stands behind it.
template <class Assertion>
KORVA_AttachmentHandler& ValueReader::requireHandler(Assertion assertion) const {
    try {
        assertion(m_context.attachmentHandler);
    } catch (ZELAssertError& error) {
        ZEL_RETHROW(
            error, "KORVA_AttachmentHandler",
            "the value is in an attachment, so call setAttachmentHandler() before the parse");
    }
    return *m_context.attachmentHandler;
}

KORVA_AttachmentHandler& ValueReader::handlerOfText() const {
    return requireHandler([](const auto* m_attachmentHandler) {
        // clang-format off
        ZEL_ASSERT_NAMED(m_attachmentHandler, "KORVASchemaTypeIContentHandler::setCurrentCharacterData - Handler not configured to process href attachments. );");
        // clang-format on
    });
}

/// The value of a parameter of text or binary type that its attachment will fill.
void* ValueReader::makeAttachedValue(ObjectType type) {
    auto* const attached = m_context.registry->make<AttachedValue>();
    handlerOfText().registerHref(m_contentId.c_str(), *attached, "", type, 0);
    return attached->valueFor(type);
}

/// Tells the attachment handler of the content of `object`: a reference must not get lost.
void ValueReader::registerReference(KORVASchemaTypeI& object, std::size_t position) {
    handlerOfText().registerHref(m_contentId.c_str(), object, "", KORVASchemaTypeI::eString,
                                 position);
}

}  // namespace korva
