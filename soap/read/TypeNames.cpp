#include "soap/read/TypeNames.h"

#include "core/NumberedError.h"
#include "soap/read/TypeAttributes.h"
#include "soap/read/Utf16.h"

#include <i18n/KORVAI18NRes.h>
#include <i18n/KORVAMessageId.h>
#include <korva/KORVANamespaceMapping.h>
#include <korva/KORVASchemaTypeIContentHandler.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <zel/ZELAssert.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>

namespace korva {

namespace {

constexpr std::size_t DEFAULT_TMP_CHAR_BUFFER_SIZE =
    KORVASchemaTypeIContentHandler::DEFAULT_TMP_CHAR_BUFFER_SIZE;

/// A prefix or a local part with a NUL behind it, as those want it who look it up.
class Part {
public:
    explicit Part(std::string_view text) : m_length(std::min(text.size(), sizeof m_text - 1)) {
        std::memcpy(m_text, text.data(), m_length);
        m_text[m_length] = '\0';
    }
    const char* text() const { return m_text; }

private:
    char m_text[3 * DEFAULT_TMP_CHAR_BUFFER_SIZE];
    std::size_t m_length;
};

// The assertion's text is published, so its names stand here for what it says.
struct XMLString {
    static std::size_t stringLen(std::string_view text) { return utf16Length(text); }
};

bool is(const char* uri, KORVAI18NRes::Number number) {
    return KORVAI18NRes::getView(number) == uri;
}

}  // namespace

std::size_t TypeNames::Recent::positionOf(std::string_view name) {
    // Types that share a prefix differ in their ends and in their lengths.
    constexpr std::size_t wordSize = sizeof(std::uint64_t);
    std::uint64_t word = 0;
    if (name.size() >= wordSize)
        std::memcpy(&word, name.data() + name.size() - wordSize, wordSize);
    else
        std::memcpy(&word, name.data(), name.size());
    word = (word ^ name.size() << 5U) * 0x9E3779B97F4A7C15U;
    if (name.size() >= 2 * wordSize) {
        std::uint64_t before = 0;
        std::memcpy(&before, name.data() + name.size() - 2 * wordSize, wordSize);
        word = (word ^ before) * 0x9E3779B97F4A7C15U;
    }
    return static_cast<std::size_t>(word >> 32U) % entryCount;
}

const TypeNames::ObjectType* TypeNames::Recent::find(std::string_view name,
                                                     std::size_t revision) const {
    const Entry& entry = m_entries[positionOf(name)];
    const bool matches = !name.empty() && entry.length == name.size() &&
                         entry.revision == revision &&
                         std::memcmp(entry.name, name.data(), name.size()) == 0;
    return matches ? &entry.type : nullptr;
}

void TypeNames::Recent::keep(std::string_view name, std::size_t revision, ObjectType type) {
    Entry& entry = m_entries[positionOf(name)];
    if (name.size() > sizeof entry.name) return;
    entry.revision = revision;
    entry.type = type;
    entry.length = static_cast<unsigned>(name.size());
    std::memcpy(entry.name, name.data(), name.size());
}

TypeNames::ObjectType TypeNames::resolve(const TypeAttributes& attributes,
                                         const KORVANamespaceMapping& mapping,
                                         const char* element) {
    if (!attributes.type) return KORVASchemaTypeI::e_Unknown;
    const std::string_view xsiTypeAttrValue = *attributes.type;
    if (const ObjectType* const known = m_types.find(xsiTypeAttrValue, mapping.revision()))
        return *known != KORVASchemaTypeI::e_Unknown ? *known
                                                     : resolveArray(attributes, mapping, element);

    const std::size_t colon = xsiTypeAttrValue.find(':');
    if (colon == std::string_view::npos) return KORVASchemaTypeI::e_Unknown;
    ZEL_ASSERT_NAMED(XMLString::stringLen( xsiTypeAttrValue ) < DEFAULT_TMP_CHAR_BUFFER_SIZE, "The default buffer size needs to be increased.");
    const char* const uri = mapping.getNamespace(Part(xsiTypeAttrValue.substr(0, colon)).text());
    if (uri == nullptr) return KORVASchemaTypeI::e_Unknown;
    if (is(uri, KORVAI18NRes::eSoapEncodingNamespace)) {
        m_types.keep(xsiTypeAttrValue, mapping.revision(), KORVASchemaTypeI::e_Unknown);
        return resolveArray(attributes, mapping, element);
    }

    const KORVASchemaTypesFactory& factory = KORVASchemaTypesFactory::getInstance();
    const Part local(xsiTypeAttrValue.substr(colon + 1));
    ObjectType type = KORVASchemaTypeI::e_Unknown;
    if (is(uri, KORVAI18NRes::eBusNamespace))
        type = factory.busTypeToObjectType(local.text());
    else if (is(uri, KORVAI18NRes::eSchemaNamespace))
        type = factory.xsiTypeToObjectType(local.text());
    else
        return KORVASchemaTypeI::e_Unknown;
    if (type == KORVASchemaTypeI::e_Unknown)
        KORVA_RAISE(eKORVA_UnknownType, "KORVASchemaTypeIContentHandler::getObjectType()",
                    std::string(xsiTypeAttrValue).c_str(), element);
    m_types.keep(xsiTypeAttrValue, mapping.revision(), type);
    return type;
}

/// The identity of the array that `arrayType` tells.
TypeNames::ObjectType TypeNames::resolveArray(const TypeAttributes& attributes,
                                              const KORVANamespaceMapping& mapping,
                                              const char* element) {
    if (!attributes.arrayType)
        KORVA_RAISE(eKORVA_NoArrayType, "KORVASchemaTypeIContentHandler::startElement", element);
    const std::string_view soapEncArrayTypeAttrValue = *attributes.arrayType;
    // The dimensions aren't read: nothing is reserved for what is only announced.
    const std::size_t colon = soapEncArrayTypeAttrValue.find(':');
    const std::string_view name = soapEncArrayTypeAttrValue.substr(
        0, soapEncArrayTypeAttrValue.find('[', colon != std::string_view::npos ? colon : 0));
    if (soapEncArrayTypeAttrValue.size() < DEFAULT_TMP_CHAR_BUFFER_SIZE)
        if (const ObjectType* const known = m_arrayTypes.find(name, mapping.revision()))
            return *known;

    if (colon == std::string_view::npos)
        KORVA_RAISE(eKORVA_BadArrayType, "KORVASchemaTypeIContentHandler::getBusXsiType()",
                    std::string(soapEncArrayTypeAttrValue).c_str(), element);
    ZEL_ASSERT_NAMED(XMLString::stringLen( soapEncArrayTypeAttrValue ) < DEFAULT_TMP_CHAR_BUFFER_SIZE, "The default buffer size needs to be increased.");
    const char* const uri = mapping.getNamespace(Part(name.substr(0, colon)).text());
    if (uri == nullptr || !is(uri, KORVAI18NRes::eBusNamespace)) return KORVASchemaTypeI::e_Unknown;
    const auto type = KORVASchemaTypesFactory::getInstance().busArrayTypeToObjectType(
        Part(name.substr(colon + 1)).text());
    if (type == KORVASchemaTypeI::e_Unknown)
        KORVA_RAISE(eKORVA_UnknownType, "KORVASchemaTypeIContentHandler::getObjectType()",
                    std::string(*attributes.type).c_str(), element);
    m_arrayTypes.keep(name, mapping.revision(), type);
    return type;
}

}  // namespace korva
