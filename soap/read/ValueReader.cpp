#include "soap/read/ValueReader.h"

#include "core/ArrayAccess.h"
#include "core/Fields.h"
#include "core/Names.h"
#include "core/NumberedError.h"
#include "soap/attachments/AttachedValue.h"
#include "soap/read/ReadingContext.h"
#include "soap/read/References.h"
#include "soap/read/TypeAttributes.h"
#include "soap/read/TypeChecks.h"
#include "types/Numbers.h"
#include "types/PlainTypes.h"

#include <brim/BRIMBase64InputStream.h>
#include <brim/BRIMInputStream.h>
#include <i18n/KORVAMessageId.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_ArrayObject.h>
#include <korva/KORVA_AttachmentHandler.h>
#include <korva/KORVA_EnumObject.h>
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

/// From this size on a text keeps the buffer that it was collected in.
constexpr std::size_t largeText = 4096;
/// From this size on that buffer is kept as it is, with its unused end.
constexpr std::size_t hugeText = 1 << 20;

/// How much of a binary is collected before it is decoded, unless it ends.
constexpr std::size_t largeEncoding = 65536;

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

std::string ValueReader::path() const {
    // More than a path shows.
    constexpr std::size_t enough = 128;
    std::vector<const char*> names;
    const std::size_t count = m_objStack.size();
    for (std::size_t i = 0; i != count; ++i) {
        if (i == enough && count > 2 * enough) i = count - enough;
        if (m_objStack[i].name != nullptr) names.push_back(m_objStack[i].name);
    }
    return pathOf(names);
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

void ValueReader::skip(const char* name) {
    push(Kind::Skipped, name, KORVASchemaTypeI::e_Unknown).length = 1;
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

void ValueReader::startRoot(const Element& element, ObjectType expectedType,
                            ObjectType declaredType, std::size_t number) {
    const char* const localname = element.localName;
    ZEL_ASSERT((localname != NULL) && (strlen( localname ) > 0));
    const TypeAttributes told(element, m_context.attributeNamespaces);
    const ObjectType declared =
        expectedType != KORVASchemaTypeI::e_Unknown ? expectedType : declaredType;
    if (told.isShared) [[unlikely]] {
        noteShared(element);
        if (isReference(element) && declared != KORVASchemaTypeI::e_Unknown) {
            ReferencePlace place;
            place.position = number;
            place.declared = declared;
            return startReference(element, place);
        }
    }
    const bool takesStrings = m_context.findings.policy.takesPlainStrings();
    ObjectType type = m_context.types.resolve(told, *m_context.mapping, localname);
    if (type == KORVASchemaTypeI::e_Unknown)
        type = declared;
    else if (type != declared && takesStrings)
        type = asDeclared(type, declared, element);
    if (type == KORVASchemaTypeI::e_Unknown) {
        skip(element.localName);
        m_context.findings.tell(KORVA_ReadingFinding::eSkippedElement, element,
                                "neither it nor what holds it tells a type");
        if (told.isShared) identify(element);
        return;
    }
    if (told.isNil) {
        push(Kind::Nil, localname, type);
    } else {
        Frame& root = pushNew(localname, type);
        if (root.kind == Kind::Number) root.value = makeNumberOfRoot(type);
        if (expectedType != KORVASchemaTypeI::e_Unknown)
            checkType(localname, objectOf(root), type, expectedType);
        startText(told);
    }
    if (told.isShared) [[unlikely]]
        identify(element);
}

// ----- elements that are shared -----

/// Tells of an element that refers to another, or that others may refer to.
void ValueReader::noteShared(const Element& element) const {
    const Sharing told(element);
    const bool isFollowed = m_context.references != nullptr;
    if (!told.referredId.empty())
        m_context.findings.tell(KORVA_ReadingFinding::eReference, element,
                                isFollowed ? "it has the value of another element"
                                           : "references are not followed, so it is empty");
    if (!told.id.empty())
        m_context.findings.tell(KORVA_ReadingFinding::eIdentity, element,
                                "other elements may refer to it");
}

bool ValueReader::isReference(const Element& element) const {
    return m_context.references != nullptr && !Sharing(element).referredId.empty();
}

/// The element has the value of another. What it holds itself is nobody's.
void ValueReader::startReference(const Element& element, const ReferencePlace& place) {
    skip(element.localName);
    m_objStack.back().refers = true;
    const bool isRoot = m_objStack.size() == 1;
    if (isRoot) identify(element);
    m_context.references->refer(place, element.localName, Sharing(element).referredId);
}

/// A child that has the value of another element: false if the parent has no place for it.
bool ValueReader::startReferringChild(const Element& element) {
    const Frame& parent = m_objStack.back();
    ReferencePlace place;
    place.object = objectOf(parent);
    if (parent.kind == Kind::Fields) {
        place.kind = ReferencePlace::Kind::Field;
        place.field = findField(*parent.fields, nameCrc(element.localName)).field;
        if (place.field == nullptr) return false;
        place.declared = place.field->type;
    } else {
        // The details of a fault that stand in no schema are never shared.
        if (parent.kind != Kind::Items || findHandWrittenType(parent.type) != nullptr) return false;
        auto& array = static_cast<KORVA_ArrayObject&>(*place.object);
        place.kind = ReferencePlace::Kind::Item;
        place.position = array.size();
        place.declared = array.getChildType(element.localName);
        ArrayAccess::resize(array, place.position + 1);
    }
    startReference(element, place);
    return true;
}

/// Others may refer to the newest frame.
void ValueReader::identify(const Element& element) {
    if (m_context.references == nullptr) return;
    const std::string_view id = Sharing(element).id;
    if (id.empty()) return;
    Frame& frame = m_objStack.back();
    // Where an item will be is not known yet.
    if (frame.kind == Kind::Number && frame.value == nullptr)
        frame.value = makeNumberOfRoot(frame.type);
    m_context.references->open(id);
    m_identified.push_back(m_objStack.size());
}

/// The newest frame, to which others may refer, has its value.
void ValueReader::endIdentified() {
    const Frame& frame = m_objStack.back();
    m_identified.pop_back();
    ElementValue value;
    if (frame.kind != Kind::Skipped) {
        value = {frame.type, frame.value, frame.length, frame.kind == Kind::Nil};
        if (isRoot(frame) && frame.kind == Kind::Made && Factory::isString(frame.type))
            value.value = const_cast<char*>(static_cast<ZELByteBuffer*>(frame.value)->str());
    }
    m_context.references->close(value);
    if (frame.kind != Kind::Number || isRoot(frame)) return;
    const Frame& parent = m_objStack[m_objStack.size() - 2];
    if (parent.kind == Kind::Items)
        objectOf(parent)->setChildObject(frame.name, frame.value, frame.type, nullptr);
}

void ValueReader::endRoot() {
    if (!m_identified.empty()) endIdentified();
}

/// The type of an element that tells another one than the declared: toolkits call all texts
/// strings.
ObjectType ValueReader::asDeclared(ObjectType type, ObjectType declared, const Element& element) {
    if (type == declared || !m_context.findings.policy.takesPlainStrings() ||
        !Factory::isString(type))
        return type;
    const TypeDescriptor* const row = findType(declared);
    const bool isText = Factory::isString(declared) ||
                        (row != nullptr && row->fields == nullptr && row->create != nullptr &&
                         row->elementType == KORVASchemaTypeI::e_Unknown);
    if (!isText) return type;
    m_context.findings.tell(KORVA_ReadingFinding::ePlainString, element,
                            "it calls itself a string, and is read as the declared type");
    return declared;
}

// ----- further starts of elements -----

void ValueReader::startDocumentRoot(const Element& element) {
    const TypeAttributes told(element, m_context.attributeNamespaces);
    if (told.isNil) {
        push(Kind::Nil, element.localName, KORVASchemaTypeI::e_Unknown);
        return;
    }
    const ObjectType type = m_context.types.resolve(told, *m_context.mapping, element.localName);
    if (told.isShared) [[unlikely]]
        noteShared(element);
    if (type == KORVASchemaTypeI::e_Unknown) {
        skip(element.localName);
        m_context.findings.tell(KORVA_ReadingFinding::eSkippedElement, element,
                                "it tells no type that is known");
        return;
    }
    pushNew(element.localName, type);
    startText(told);
    if (told.isShared) [[unlikely]]
        identify(element);
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
    if (told.isShared) [[unlikely]] {
        noteShared(element);
        if (isReference(element) && startReferringChild(element)) return;
    }
    if (told.isNil) {
        push(Kind::Nil, name, KORVASchemaTypeI::e_Unknown);
    } else {
        bool isKnown = true;
        switch (parent.kind) {
            case Kind::Fields: isKnown = startField(element, told); break;
            case Kind::Items: isKnown = startItem(element, told); break;
            case Kind::Asked: startAsked(element, told); break;
            default: KORVA_RAISE(eKORVA_ElementInSimpleValue, startElementLabel, name);
        }
        if (!isKnown) {
            skip(element.localName);
            m_context.findings.tell(KORVA_ReadingFinding::eSkippedElement, element,
                                    "what it stands in has no such child");
            return;
        }
        startText(told);
    }
    if (told.isShared) [[unlikely]]
        identify(element);
}

bool ValueReader::startField(const Element& element, const TypeAttributes& told) {
    const char* const name = element.localName;
    const Frame& parent = m_objStack.back();
    const FieldDescriptor* const field = findField(*parent.fields, nameCrc(name)).field;
    if (field == nullptr) return false;
    const ObjectType type = m_context.types.resolve(told, *m_context.mapping, name);
    startFieldOf(*field, *ClassDescriptor::recordOf(*objectOf(parent)), element, type);
    return true;
}

void ValueReader::startFieldOf(const FieldDescriptor& field, Record& record, const Element& element,
                               ObjectType xsiType) {
    const char* const name = element.localName;
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
    ObjectType type = field.type;
    if (xsiType != KORVASchemaTypeI::e_Unknown)
        type = m_context.findings.policy.takesPlainStrings()
                   ? asDeclared(xsiType, field.type, element)
                   : xsiType;
    Frame& child = pushNew(name, type);
    if (xsiType != KORVASchemaTypeI::e_Unknown) checkType(name, objectOf(child), type, field.type);
    child.field = &field;
    if (field.kind == FieldKind::Object) store(record, field.offset, child.value);
}

bool ValueReader::startItem(const Element& element, const TypeAttributes& told) {
    const char* const name = element.localName;
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
    } else if (m_context.findings.policy.takesPlainStrings()) {
        type = asDeclared(type, declared, element);
    }
    // A fault has details of one kind, and whoever sent two still sent a fault.
    if (isUndocumented && type == KORVASchemaTypeI::eKORVAFaultDetail) return false;

    const Frame& item = pushNew(name, type);
    checkItemType(objectOf(item), type, declared);
    if (Factory::isGeneratedType(type)) array.setChildObject(name, item.value, type, nullptr);
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

void ValueReader::startAsked(const Element& element, const TypeAttributes& told) {
    const char* const name = element.localName;
    const Frame& parent = m_objStack.back();
    KORVASchemaTypeI& object = *objectOf(parent);
    const ObjectType declared = object.getChildType(name);
    const ObjectType xsiType = m_context.types.resolve(told, *m_context.mapping, name);
    if (std::strcmp(name, "message") == 0) return startDetailMessage(name);
    if (object.getChildObject(name, false) != nullptr)
        KORVA_RAISE(eKORVA_ElementTwice, startElementLabel, parent.name, name);
    const ObjectType type =
        xsiType != KORVASchemaTypeI::e_Unknown ? asDeclared(xsiType, declared, element) : declared;
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
        if (--ending.length == 0) {
            if (m_objStack.size() == 1) endRoot();
            m_objStack.pop_back();
        }
        return nullptr;
    }
    makeValue(ending);
    if (!m_identified.empty() && m_identified.back() == m_objStack.size()) [[unlikely]]
        endIdentified();
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
        ZEL_ASSERT_NAMED(m_attachmentHandler, "KORVASchemaTypeIContentHandler::endElement - Handler not configured to process href attachments. );");
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
    if (frame.kind == Kind::Skipped) return;
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
    if (m_context.findings.policy.keepsUnknownWords() && !frame.refers && makeWord(frame)) return;
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
        ZEL_ASSERT_NAMED(m_attachmentHandler, "KORVASchemaTypeIContentHandler::setCurrentCharacterData - Handler not configured to process href attachments. );");
    });
}

/// Sets the word of an enumeration, whether it is known or not.
/// @return false if the object is none
bool ValueReader::makeWord(const Frame& frame) {
    auto* const enumeration = dynamic_cast<KORVA_EnumObject*>(objectOf(frame));
    if (enumeration == nullptr) return false;
    if (!enumeration->setWord(m_context.text.str(), *m_context.registry))
        m_context.findings.tell(KORVA_ReadingFinding::eUnknownWord, {}, frame.name,
                                "its enumeration has no such word, which is kept");
    return true;
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
