#include "soap/read/TypeNames.h"

#include "core/NumberedError.h"
#include "soap/read/TypeAttributes.h"
#include "soap/read/Utf16.h"

#include <i18n/KORVAI18NRes.h>
#include <i18n/KORVAMessageId.h>
#include <korva/KORVANamespaceMapping.h>
#include <korva/KORVASchemaTypeIContentHandler.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <zel/I18NConverter.h>
#include <zel/ZELAssert.h>

#include <xercesc/util/XMLString.hpp>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iterator>

namespace korva {

namespace {

using xercesc::XMLString;

constexpr std::size_t DEFAULT_TMP_CHAR_BUFFER_SIZE =
    KORVASchemaTypeIContentHandler::DEFAULT_TMP_CHAR_BUFFER_SIZE;

/// A prefix or a local part in UTF-8.
class Part {
public:
    Part(const XMLCh* first, const XMLCh* last) {
        I18NConverter().toUtf8(first, static_cast<std::size_t>(last - first), m_text,
                               sizeof m_text);
    }
    const char* text() const { return m_text; }

private:
    char m_text[3 * DEFAULT_TMP_CHAR_BUFFER_SIZE];
};

const XMLCh* findColon(const XMLCh* text) {
    while (*text != 0 && *text != u':')
        ++text;
    return *text != 0 ? text : nullptr;
}

bool is(const char* uri, KORVAI18NRes::Number number) {
    return std::strcmp(uri, KORVAI18NRes::getChar(number)) == 0;
}

/// The identity of the array that `arrayType` tells.
KORVASchemaTypeI::ObjectType arrayType(const TypeAttributes& attributes,
                                       const KORVANamespaceMapping& mapping, const char* element) {
    const XMLCh* const soapEncArrayTypeAttrValue = attributes.arrayType;
    if (soapEncArrayTypeAttrValue == nullptr)
        KORVA_RAISE(eKORVA_NoArrayType, "KORVASchemaTypeIContentHandler::startElement", element);
    const XMLCh* const colon = findColon(soapEncArrayTypeAttrValue);
    if (colon == nullptr)
        KORVA_RAISE(eKORVA_BadArrayType, "KORVASchemaTypeIContentHandler::getBusXsiType()",
                    utf8(soapEncArrayTypeAttrValue).c_str(), element);
    // clang-format off
    ZEL_ASSERT_NAMED(XMLString::stringLen( soapEncArrayTypeAttrValue ) < DEFAULT_TMP_CHAR_BUFFER_SIZE, "The default buffer size needs to be increased.");
    // clang-format on
    const char* const uri = mapping.getNamespace(Part(soapEncArrayTypeAttrValue, colon).text());
    if (uri == nullptr || !is(uri, KORVAI18NRes::eBusNamespace)) return KORVASchemaTypeI::e_Unknown;
    // The dimensions aren't read: nothing is reserved for what is only announced.
    const XMLCh* last = colon + 1;
    while (*last != 0 && *last != u'[')
        ++last;
    const auto type = KORVASchemaTypesFactory::getInstance().busArrayTypeToObjectType(
        Part(colon + 1, last).text());
    if (type == KORVASchemaTypeI::e_Unknown)
        KORVA_RAISE(eKORVA_UnknownType, "KORVASchemaTypeIContentHandler::getObjectType()",
                    utf8(attributes.type).c_str(), element);
    return type;
}

}  // namespace

TypeNames::ObjectType TypeNames::resolve(const TypeAttributes& attributes,
                                         const KORVANamespaceMapping& mapping,
                                         const char* element) {
    const XMLCh* const xsiTypeAttrValue = attributes.type;
    if (xsiTypeAttrValue == nullptr) return KORVASchemaTypeI::e_Unknown;

    // Few types make up a document; the same text under the same declarations is the same type.
    unsigned length = 0;
    std::uint32_t hash = 0;
    for (; xsiTypeAttrValue[length] != 0; ++length)
        hash = hash * 31 + xsiTypeAttrValue[length];
    Recent& recent = m_recent[hash % recentCount];
    if (recent.length == length && recent.revision == mapping.revision() && length != 0 &&
        std::equal(xsiTypeAttrValue, xsiTypeAttrValue + length, recent.value))
        return recent.type;

    const XMLCh* const colon = findColon(xsiTypeAttrValue);
    if (colon == nullptr) return KORVASchemaTypeI::e_Unknown;
    // clang-format off
    ZEL_ASSERT_NAMED(XMLString::stringLen( xsiTypeAttrValue ) < DEFAULT_TMP_CHAR_BUFFER_SIZE, "The default buffer size needs to be increased.");
    // clang-format on
    const char* const uri = mapping.getNamespace(Part(xsiTypeAttrValue, colon).text());
    if (uri == nullptr) return KORVASchemaTypeI::e_Unknown;
    if (is(uri, KORVAI18NRes::eSoapEncodingNamespace))
        return arrayType(attributes, mapping, element);

    const KORVASchemaTypesFactory& factory = KORVASchemaTypesFactory::getInstance();
    const Part local(colon + 1, xsiTypeAttrValue + length);
    ObjectType type = KORVASchemaTypeI::e_Unknown;
    if (is(uri, KORVAI18NRes::eBusNamespace))
        type = factory.busTypeToObjectType(local.text());
    else if (is(uri, KORVAI18NRes::eSchemaNamespace))
        type = factory.xsiTypeToObjectType(local.text());
    else
        return KORVASchemaTypeI::e_Unknown;
    if (type == KORVASchemaTypeI::e_Unknown)
        KORVA_RAISE(eKORVA_UnknownType, "KORVASchemaTypeIContentHandler::getObjectType()",
                    utf8(xsiTypeAttrValue).c_str(), element);

    if (length <= std::size(recent.value)) {
        recent.revision = mapping.revision();
        recent.type = type;
        recent.length = length;
        std::copy_n(xsiTypeAttrValue, length, recent.value);
    }
    return type;
}

}  // namespace korva
