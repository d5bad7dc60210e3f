#include "korva/KORVASchemaTypeIContentHandler.h"

#include "core/Descriptor.h"
#include "core/NumberedError.h"
#include "soap/attachments/AttachedValue.h"
#include "soap/read/NativeText.h"
#include "soap/read/ReadingContext.h"
#include "soap/read/TypeAttributes.h"
#include "soap/read/Utf16.h"

#include <brim/BRIMBase64InputStream.h>
#include <brim/BRIMMemoryInputStream.h>
#include <i18n/KORVAMessageId.h>
#include <korva/KORVANamespaceMapping.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_AttachmentHandler.h>
#include <korva/KORVA_String.h>
#include <zel/I18NConverter.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

#include <cstring>
#include <memory>

using korva::ReadingContext;
using Factory = KORVASchemaTypesFactory;

namespace {

constexpr const char* startElementLabel = "KORVASchemaTypeIContentHandler::startElement";
constexpr const char* charactersLabel = "KORVASchemaTypeIContentHandler::characters";
constexpr const char* checkTypeLabel = "KORVASchemaTypeIContentHandler::checkType()";

/// From this size on a text keeps the buffer that it was collected in.
constexpr std::size_t largeText = 4096;
/// From this size on that buffer is kept as it is, with its unused end.
constexpr std::size_t hugeText = 1 << 20;

const char* xsiType(KORVASchemaTypeI::ObjectType type) {
    return Factory::getInstance().objectTypeToXSIType(type);
}

bool isNumeric(KORVASchemaTypeI::ObjectType type) {
    switch (type) {
        case KORVASchemaTypeI::eInt:
        case KORVASchemaTypeI::eInteger:
        case KORVASchemaTypeI::eDecimal:
        case KORVASchemaTypeI::eFloat:
        case KORVASchemaTypeI::eBoolean: return true;
        default: return false;
    }
}

/// Makes a value that the registry owns.
template <class Value, class... Arguments>
Value* makeRegistered(KORVAObjectRegistryI& registry, Arguments... arguments) {
    auto value = std::make_unique<Value>(arguments...);
    registry.registerPointer(value.get());
    return value.release();
}

ReadingContext* makeContext() {
    try {
        return new ReadingContext;
    }
    ZEL_CATCH("KORVASchemaTypeIContentHandler::KORVASchemaTypeIContentHandler");
}

std::string_view view(const ZELByteBuffer& buffer) {
    return {buffer.str(), buffer.pcount()};
}

}  // namespace

KORVASchemaTypeIContentHandler::Entry::Entry(const char* n, ObjectType t, void* v) noexcept
    : name(n),
      type(t),
      isArray(false),
      isSimple(false),
      takesText(true),
      setAtEnd(false),
      value(v),
      text(nullptr),
      textLength(0),
      simple{} {}

KORVASchemaTypeIContentHandler::KORVASchemaTypeIContentHandler(
    const XMLCh* localName, const xercesc::Attributes& attributes,
    KORVANamespaceMapping* namespaceMapping, KORVAObjectRegistryI* registry,
    I18NConverter& converter, ObjectType expectedType)
    : KORVASchemaTypeIContentHandler(nullptr, namespaceMapping, registry, converter) {
    startRoot(localName, attributes, expectedType);
}

KORVASchemaTypeIContentHandler::KORVASchemaTypeIContentHandler(
    void** resultSlot, KORVANamespaceMapping* namespaceMapping, KORVAObjectRegistryI* registry,
    I18NConverter& converter)
    : KORVAContentHandler(converter),
      m_inScopePrefixesToNamespaceMappings(namespaceMapping),
      m_objectRegistry(registry),
      m_ownContext(makeContext()),
      m_context(m_ownContext.get()),
      m_resultSlot(resultSlot) {}

KORVASchemaTypeIContentHandler::KORVASchemaTypeIContentHandler(
    const XMLCh* localName, const xercesc::Attributes& attributes,
    KORVANamespaceMapping* namespaceMapping, KORVAObjectRegistryI* registry,
    I18NConverter& converter, ObjectType expectedType, korva::ReadingContext& context)
    : KORVAContentHandler(converter),
      m_inScopePrefixesToNamespaceMappings(namespaceMapping),
      m_objectRegistry(registry),
      m_context(&context) {
    startRoot(localName, attributes, expectedType);
}

KORVASchemaTypeIContentHandler::~KORVASchemaTypeIContentHandler() = default;

KORVANamespaceMapping& KORVASchemaTypeIContentHandler::getNamespaceMapping() const {
    ZEL_ASSERT(m_inScopePrefixesToNamespaceMappings);
    return *m_inScopePrefixesToNamespaceMappings;
}

const KORVASchemaTypeIContentHandler::Entry& KORVASchemaTypeIContentHandler::top() const {
    ZEL_ASSERT(m_objStack.size() > 0);
    return m_objStack.back();
}

KORVASchemaTypeIContentHandler::Entry& KORVASchemaTypeIContentHandler::top() {
    ZEL_ASSERT(m_objStack.size() > 0);
    return m_objStack.back();
}

KORVASchemaTypeI::ObjectType KORVASchemaTypeIContentHandler::getParamType() const {
    return m_unknownDepth > 0 ? KORVASchemaTypeI::e_Unknown : top().type;
}

void* KORVASchemaTypeIContentHandler::getParamValue() {
    if (m_unknownDepth > 0 || m_objStack.empty()) return nullptr;
    Entry& param = m_objStack.back();
    // The end of a text or binary is not told here, so there is no later place for this.
    if (m_hasContentId && (Factory::isString(param.type) || Factory::isBase64(param.type)))
        referToAttachment(param);
    else
        setCurrentCharacterData(param);
    return param.value;
}

// ----- elements -----

void KORVASchemaTypeIContentHandler::startRoot(const XMLCh* localName,
                                               const xercesc::Attributes& attributes,
                                               ObjectType expectedType) {
    const char* const localname = localName != nullptr ? m_context->names.find(localName) : nullptr;
    // clang-format off
    ZEL_ASSERT((localname != NULL) && (strlen( localname ) > 0));
    // clang-format on
    const korva::TypeAttributes told(attributes);
    ObjectType type = m_context->types.resolve(told, getNamespaceMapping(), localname);
    if (type == KORVASchemaTypeI::e_Unknown) type = expectedType;
    if (type == KORVASchemaTypeI::e_Unknown) {
        ++m_unknownDepth;
        return;
    }
    if (told.isNil) {
        m_nilElement = localname;
        m_objStack.emplace_back(localname, type, nullptr);
        return;
    }
    if (told.contentId != nullptr) {
        m_contentId = korva::utf8(told.contentId);
        m_hasContentId = true;
    }
    Entry entry = makeEntry(localname, type);
    registerSimpleValue(entry);
    m_objStack.push_back(entry);
    if (expectedType != KORVASchemaTypeI::e_Unknown)
        checkType(localname, entry.value, type, expectedType);
    startText();
}

void KORVASchemaTypeIContentHandler::startElement(const XMLCh*, const XMLCh* localName,
                                                  const XMLCh*,
                                                  const xercesc::Attributes& attributes) {
    if (m_unknownDepth > 0) {
        ++m_unknownDepth;
        return;
    }
    const bool isDocumentRoot = m_resultSlot != nullptr && m_objStack.empty();
    if (!isDocumentRoot && top().type == KORVASchemaTypeI::e_Unknown) {
        ++m_unknownDepth;
        return;
    }
    if (m_nilElement != nullptr) KORVA_RAISE(eKORVA_ElementInNil, startElementLabel, m_nilElement);
    if (m_hasContentId)
        KORVA_RAISE(eKORVA_ElementInReference, startElementLabel, top().name, m_contentId.c_str());

    const char* const name = m_context->names.find(localName);
    const korva::TypeAttributes told(attributes);
    if (told.isNil) {
        m_nilElement = name;
        return;
    }
    if (told.contentId != nullptr) {
        m_contentId = korva::utf8(told.contentId);
        m_hasContentId = true;
    }

    if (isDocumentRoot) {
        const ObjectType type = m_context->types.resolve(told, getNamespaceMapping(), name);
        if (type == KORVASchemaTypeI::e_Unknown) return skip();
        m_objStack.push_back(makeEntry(name, type));
        return startText();
    }

    const Entry& parent = top();
    if (parent.isSimple) KORVA_RAISE(eKORVA_ElementInSimpleValue, startElementLabel, name);
    auto* const pSchemaTypeI = static_cast<KORVASchemaTypeI*>(parent.value);
    ZEL_ASSERT(pSchemaTypeI);
    const ObjectType declared = pSchemaTypeI->getChildType(name);
    if (declared == KORVASchemaTypeI::e_Unknown &&
        pSchemaTypeI->getObjectType() != KORVASchemaTypeI::e_Unknown)
        return skip();

    const ObjectType xsiType = m_context->types.resolve(told, getNamespaceMapping(), name);
    if (parent.isArray)
        startItem(name, xsiType, declared);
    else
        startChild(name, xsiType, declared);
    startText();
}

void KORVASchemaTypeIContentHandler::skip() {
    m_hasContentId = false;
    ++m_unknownDepth;
}

void KORVASchemaTypeIContentHandler::startItem(const char* name, ObjectType xsiType,
                                               ObjectType declared) {
    const Entry& parent = top();
    auto* const array = static_cast<KORVASchemaTypeI*>(parent.value);
    ObjectType type = xsiType;
    if (type == KORVASchemaTypeI::e_Unknown) {
        // Details without a type are the undocumented ones of a fault.
        if (parent.type == KORVASchemaTypeI::eKORVAFaultDetailArray ||
            parent.type == KORVASchemaTypeI::eKORVAUndocumentedFaultDetailArray)
            return startUndocumentedDetail();
        type = declared;
    }

    Entry item = makeEntry(name, type);
    const bool isObject = Factory::isGeneratedType(type);
    const bool fits = isObject ? Factory::isGeneratedType(declared) &&
                                     static_cast<KORVASchemaTypeI*>(item.value)->isa(declared)
                               : type == declared;
    if (!fits)
        KORVA_RAISE(eKORVA_WrongItemType, startElementLabel, ::xsiType(type), ::xsiType(declared));
    item.setAtEnd = !isObject;
    if (isObject) array->setChildObject(name, item.value, type, nullptr);
    m_objStack.push_back(item);
}

void KORVASchemaTypeIContentHandler::startUndocumentedDetail() {
    ZEL_ASSERT((m_objStack.size() == 1));
    Entry& details = m_objStack.front();
    if (details.type != KORVASchemaTypeI::eKORVAUndocumentedFaultDetailArray) {
        details.value = makeObject(KORVASchemaTypeI::eKORVAUndocumentedFaultDetailArray);
        details.type = KORVASchemaTypeI::eKORVAUndocumentedFaultDetailArray;
    }
    Entry detail(nullptr, KORVASchemaTypeI::eKORVAUndocumentedFaultDetail,
                 makeObject(KORVASchemaTypeI::eKORVAUndocumentedFaultDetail));
    detail.takesText = false;
    static_cast<KORVASchemaTypeI*>(details.value)
        ->setChildObject(details.name, detail.value, detail.type, nullptr);
    m_objStack.push_back(detail);
}

/// A message of an undocumented detail, of which there may be many.
void KORVASchemaTypeIContentHandler::startDetailMessage(const char* name) {
    Entry message(nullptr, KORVASchemaTypeI::eKORVAMessage,
                  makeObject(KORVASchemaTypeI::eKORVAMessage));
    message.takesText = false;
    static_cast<KORVASchemaTypeI*>(top().value)
        ->setChildObject(name, message.value, message.type, nullptr);
    m_objStack.push_back(message);
}

void KORVASchemaTypeIContentHandler::startChild(const char* name, ObjectType xsiType,
                                                ObjectType declared) {
    const Entry& parent = top();
    if (parent.type == KORVASchemaTypeI::eKORVAUndocumentedFaultDetail &&
        std::strcmp(name, "message") == 0)
        return startDetailMessage(name);
    auto* const object = static_cast<KORVASchemaTypeI*>(parent.value);
    void* child = object->getChildObject(name, false);
    const bool isArray = child != nullptr && Factory::isArrayType(declared);
    if (child != nullptr && !isArray)
        KORVA_RAISE(eKORVA_ElementTwice, startElementLabel, parent.name, name);
    if (child == nullptr && isNumeric(declared)) child = object->getChildObject(name, true);
    if (child != nullptr) {
        // A number, a boolean or an array, which the parent holds itself: the wire's type plays no
        // part.
        Entry& entry = m_objStack.emplace_back(name, declared, child);
        entry.isArray = isArray;
        entry.isSimple = !isArray;
        entry.takesText = !isArray;
        return;
    }
    const ObjectType type = xsiType != KORVASchemaTypeI::e_Unknown ? xsiType : declared;
    Entry entry = makeEntry(name, type);
    if (xsiType != KORVASchemaTypeI::e_Unknown) checkType(name, entry.value, type, declared);
    entry.setAtEnd = !Factory::isGeneratedType(type);
    if (!entry.setAtEnd) object->setChildObject(name, entry.value, type, nullptr);
    m_objStack.push_back(entry);
}

KORVASchemaTypeIContentHandler::Entry KORVASchemaTypeIContentHandler::makeEntry(
    const char* name, ObjectType objType) {
    ZEL_ASSERT_NAMED(objType != KORVASchemaTypeI::e_Unknown, "Received invalid objType.");
    Entry entry(name, objType, nullptr);
    // The values of plain types come from the text.
    entry.isSimple = !Factory::isGeneratedType(objType);
    if (entry.isSimple) return entry;
    entry.value = makeObject(objType);
    // Classes and arrays have children. Enumerations and restricted strings are made from their
    // element's text; what the tables do not know may be, too.
    if (const korva::TypeDescriptor* const row = korva::findType(objType)) {
        entry.isArray = row->elementType != KORVASchemaTypeI::e_Unknown;
        entry.takesText = row->fields == nullptr && !entry.isArray;
        entry.isSimple = entry.takesText && korva::findHandWrittenType(objType) == nullptr;
    }
    return entry;
}

/// A new object that the registry owns.
KORVASchemaTypeI* KORVASchemaTypeIContentHandler::makeObject(ObjectType type) {
    std::unique_ptr<KORVASchemaTypeI> object(Factory::getInstance().create(type));
    m_objectRegistry->registerPointer(object.get());
    return object.release();
}

void KORVASchemaTypeIContentHandler::registerSimpleValue(Entry& entry) {
    constexpr auto mode = KORVAObjectRegistryI::eKORVADelete;
    const auto make = [this](auto initial) {
        auto value = std::make_unique<decltype(initial)>(initial);
        m_objectRegistry->registerPointer(value.get(), mode);
        return value.release();
    };
    switch (entry.type) {
        case KORVASchemaTypeI::eInt:
        case KORVASchemaTypeI::eInteger: entry.value = make(0); break;
        case KORVASchemaTypeI::eDecimal:
        case KORVASchemaTypeI::eFloat: entry.value = make(0.0F); break;
        case KORVASchemaTypeI::eBoolean: entry.value = make(false); break;
        default: break;
    }
}

void KORVASchemaTypeIContentHandler::checkType(const char* name, const void* value,
                                               ObjectType objectType, ObjectType expectedType) {
    if (Factory::isGeneratedType(objectType)) {
        const auto* const pSchemaTypeI = static_cast<const KORVASchemaTypeI*>(value);
        if (pSchemaTypeI == nullptr || !pSchemaTypeI->isa(expectedType))
            KORVA_RAISE(eKORVA_WrongObjectType, checkTypeLabel, name, xsiType(expectedType),
                        xsiType(objectType));
    } else if (objectType != expectedType) {
        KORVA_RAISE(eKORVA_WrongSimpleType, checkTypeLabel, name, xsiType(expectedType),
                    xsiType(objectType));
    }
}

void KORVASchemaTypeIContentHandler::endElement(const XMLCh*, const XMLCh*, const XMLCh*) {
    if (m_unknownDepth > 0) {
        --m_unknownDepth;
        return;
    }
    if (m_nilElement != nullptr) {
        m_nilElement = nullptr;
        return;
    }
    if (!m_objStack.empty()) setCurrentCharacterData(m_objStack.back());
    Entry child = top();
    m_objStack.pop_back();
    if (m_resultSlot != nullptr && m_objStack.empty())
        *m_resultSlot = Factory::isGeneratedType(child.type) ? child.value : nullptr;
    if (child.setAtEnd || Factory::isString(child.type) || Factory::isBase64(child.type))
        setOnParent(child);
    m_hasContentId = false;
}

void KORVASchemaTypeIContentHandler::setOnParent(Entry& child) {
    auto* const parent = static_cast<KORVASchemaTypeI*>(top().value);
    ZEL_ASSERT(parent);
    std::size_t position = 0;
    if (child.text != nullptr) {
        korva::TextView text(child.text, child.textLength);
        position = parent->setChildObject(child.name, static_cast<ZELByteBuffer*>(&text),
                                          child.type, nullptr);
    } else {
        void* const value = isNumeric(child.type) ? &child.simple : child.value;
        position = parent->setChildObject(child.name, value, child.type, nullptr);
    }
    // Numbers are no attachments.
    if (!m_hasContentId || isNumeric(child.type)) return;
    // clang-format off
    ZEL_ASSERT_NAMED(m_attachmentHandler, "KORVASchemaTypeIContentHandler::endElement - Handler not configured to process href attachments. );");
    // clang-format on
    m_attachmentHandler->registerHref(m_contentId.c_str(), *parent, child.name, child.type,
                                      position);
}

// ----- text -----

void KORVASchemaTypeIContentHandler::startText() {
    m_context->text.reset();
    converter().reset();
    m_hasText = true;
}

bool KORVASchemaTypeIContentHandler::takesText() const {
    return m_hasText && m_unknownDepth == 0 && !m_hasContentId && !m_objStack.empty() &&
           m_objStack.back().takesText;
}

void KORVASchemaTypeIContentHandler::characters(const XMLCh* text, XMLSize_t length) {
    if (m_unknownDepth > 0) return;
    if (m_nilElement != nullptr) KORVA_RAISE(eKORVA_TextInNil, charactersLabel, m_nilElement);
    if (m_hasContentId)
        KORVA_RAISE(eKORVA_TextInReference, charactersLabel,
                    m_objStack.empty() ? "" : m_objStack.back().name, m_contentId.c_str());
    if (!takesText()) return;
    ZELByteBuffer& buffer = m_context->text;
    // A long text is moved less often than the buffer would by itself.
    if (buffer.pcount() >= largeText && buffer.capacity() - buffer.pcount() < length)
        buffer.reserve(2 * buffer.capacity() + length);
    converter().append(text, length, buffer);
}

void KORVASchemaTypeIContentHandler::setCurrentCharacterData(Entry& param) {
    if (!m_hasText) return;
    ZELByteBuffer& text = m_context->text;
    converter().finish(text);
    if (Factory::isString(param.type)) {
        setString(param);
    } else if (Factory::isBase64(param.type)) {
        setBase64(param);
    } else if (isNumeric(param.type)) {
        setNumber(param);
    } else {
        setContent(param);
    }
    text.reset();
}

void KORVASchemaTypeIContentHandler::setString(Entry& param) {
    void* const currentObj = param.value;
    ZEL_ASSERT(!currentObj);
    const ZELByteBuffer& text = m_context->text;
    if (isRoot(param) || text.pcount() >= largeText) {
        param.value = takeText()->buffer();
    } else {
        param.textLength = text.pcount();
        param.text = m_context->texts.keep(text.str(), text.pcount(), *m_objectRegistry);
    }
    m_hasText = false;
}

/// The text that was collected, as a value that the registry owns.
KORVA_String* KORVASchemaTypeIContentHandler::takeText() {
    auto* const string = makeRegistered<KORVA_String>(*m_objectRegistry);
    *string->buffer() = std::move(m_context->text);
    // Unused pages of a large buffer cost nothing; a small one would waste half of itself.
    if (string->pcount() < hugeText) string->buffer()->shrinkToFit();
    return string;
}

void KORVASchemaTypeIContentHandler::setNumber(Entry& param) {
    const std::string_view text = korva::trimmed(view(m_context->text));
    void* const currentObj = param.value != nullptr ? param.value : &param.simple;
    const auto refuse = [&param](const char* type) {
        KORVA_RAISE(eKORVA_BadText, charactersLabel, param.name, type);
    };
    switch (param.type) {
        case KORVASchemaTypeI::eInt:
        case KORVASchemaTypeI::eInteger:
            if (!korva::readInt(text, *static_cast<int*>(currentObj))) refuse("int");
            break;
        case KORVASchemaTypeI::eBoolean:
            if (!korva::readBoolean(text, *static_cast<bool*>(currentObj))) refuse("boolean");
            break;
        default:
            if (!korva::readFloat(text, *static_cast<float*>(currentObj))) refuse("float");
            break;
    }
}

void KORVASchemaTypeIContentHandler::setBase64(Entry& param) {
    const ZELByteBuffer& text = m_context->text;
    BRIMMemoryInputStream encoded(text.str(), text.pcount());
    BRIMBase64InputStream decoder(encoded);
    // The bytes take the place of the text: the decoder has always read more than it gave.
    char* const bytes = const_cast<char*>(text.str());
    std::size_t length = 0;
    while (length != text.pcount()) {
        const long long count = decoder.read(bytes + length, text.pcount() - length);
        if (count <= 0) break;
        length += static_cast<std::size_t>(count);
    }
    param.value = length != 0
                      ? makeRegistered<KORVAXSBase64Binary>(*m_objectRegistry, bytes, length)
                      : makeRegistered<KORVAXSBase64Binary>(*m_objectRegistry);
}

void KORVASchemaTypeIContentHandler::setContent(Entry& param) {
    auto* const currentObj = static_cast<KORVASchemaTypeI*>(param.value);
    std::size_t position = 0;
    if (param.takesText) {
        ZEL_ASSERT(currentObj);
        const ZELByteBuffer& text = m_context->text;
        if (text.pcount() >= largeText) {
            position = currentObj->setChildObject("", takeText()->buffer(),
                                                  KORVASchemaTypeI::eString, nullptr);
        } else {
            korva::TextView kept(
                m_context->texts.keep(text.str(), text.pcount(), *m_objectRegistry), text.pcount());
            position = currentObj->setChildObject("", static_cast<ZELByteBuffer*>(&kept),
                                                  KORVASchemaTypeI::eString, nullptr);
        }
    }
    m_hasText = false;
    if (m_hasContentId) {
        ZEL_ASSERT(currentObj);
        registerReference(*currentObj, KORVASchemaTypeI::eString, position);
    }
}

/// Gives a parameter of text or binary type a value that its attachment will fill.
void KORVASchemaTypeIContentHandler::referToAttachment(Entry& param) {
    auto* const attached = makeRegistered<korva::AttachedValue>(*m_objectRegistry);
    registerReference(*attached, param.type, 0);
    param.value = attached->valueFor(param.type);
    m_hasContentId = false;
    m_hasText = false;
}

/// Tells the attachment handler of the content of `object`: a reference must not get lost.
void KORVASchemaTypeIContentHandler::registerReference(KORVASchemaTypeI& object, ObjectType type,
                                                       std::size_t position) {
    // clang-format off
    ZEL_ASSERT_NAMED(m_attachmentHandler, "KORVASchemaTypeIContentHandler::setCurrentCharacterData - Handler not configured to process href attachments. );");
    // clang-format on
    m_attachmentHandler->registerHref(m_contentId.c_str(), object, "", type, position);
}

// ----- documents and prefixes -----

void KORVASchemaTypeIContentHandler::startDocument() {
    ZEL_ASSERT(m_objectRegistry);
}

void KORVASchemaTypeIContentHandler::endDocument() {
    // clang-format off
    ZEL_ASSERT_NAMED(getNamespaceMapping().size() == 0, "There are namespace prefixes left on the mapping stack.");
    // clang-format on
    ZEL_ASSERT_NAMED(m_objStack.size() == 0, "There are objects left on the object stack.");
}

void KORVASchemaTypeIContentHandler::startPrefixMapping(const XMLCh* xmlPrefix, const XMLCh* uri) {
    ZEL_ASSERT(xmlPrefix);
    addPrefix(getNamespaceMapping(), xmlPrefix, uri);
}

void KORVASchemaTypeIContentHandler::endPrefixMapping(const XMLCh* xmlPrefix) {
    ZEL_ASSERT(xmlPrefix);
    removePrefix(getNamespaceMapping(), xmlPrefix);
}
