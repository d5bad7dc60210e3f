#include "soap/ObjectWriter.h"

#include <brim/BRIMOutputStream.h>
#include <brim/BRIMXmlEncodeOutputStream.h>
#include <korva/KORVASchemaTypeArrayI.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_CharStreamable.h>
#include <zel/ZELAssert.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <limits>

namespace korva {

namespace {

using wire::LineToken;
using wire::TagForm;

constexpr TagForm rootForm{LineToken("<"), LineToken("</")};
constexpr TagForm childForm{LineToken("<bus:"), LineToken("</bus:")};
constexpr TagForm itemForm{LineToken("<item"), LineToken("</item")};

constexpr std::size_t initialFrames = 16;

/// The longest text of an int.
constexpr std::size_t maxIntText = std::numeric_limits<int>::digits10 + 2;
/// The longest text of a float with two decimals and a blank: "-340282346638...0.00 ".
constexpr std::size_t maxFloatText = std::numeric_limits<float>::max_exponent10 + 7;

const KORVASchemaTypeI& asObject(const void* object) {
    return *static_cast<const KORVASchemaTypeI*>(object);
}

}  // namespace

ObjectWriter::Frame::Frame(const Element& element, bool skipUnset)
    : walk(asObject(element.object), skipUnset),
      form(&element.form),
      name(element.name),
      level(element.level),
      isMultiLine(!walk.isContent()),
      isOpened(isMultiLine) {}

ObjectWriter::ObjectWriter(BRIMOutputStream& stream, bool writeNullElements, Style style)
    : m_stream(stream),
      m_writeNullElements(writeNullElements),
      m_isLiteral(style == Style::Literal) {}

void ObjectWriter::write(const void* object, ObjectType type, const char* qName, int indent,
                         bool writeNamespaces, bool force) {
    ZEL_ASSERT_NAMED(qName != NULL, "NULL qname");
    writeElement({rootForm, qName, object, type, indent + 1}, writeNamespaces, force);
    while (!m_frames.empty())
        writeNextChild();
}

void ObjectWriter::put(std::string_view token) {
    m_stream.write(token.data(), token.size());
}

// A token that starts with the quote that ends the type; without a type there is none.
void ObjectWriter::putBehindType(std::string_view token) {
    put(m_isLiteral ? token.substr(1) : token);
}

void ObjectWriter::startLine(const LineToken& token, int level) {
    std::size_t tabs = level > 0 ? static_cast<std::size_t>(level) : 0;
    while (tabs > LineToken::maxTabs) {
        const std::size_t more = std::min(tabs - LineToken::maxTabs, std::size(wire::manyTabs));
        put({wire::manyTabs.data(), more});
        tabs -= more;
    }
    put(token.behind(tabs));
}

void ObjectWriter::writeEndTag(const TagForm& form, std::string_view name, int level) {
    startLine(form.end, level);
    if (!name.empty()) put(name);
    put(wire::tagEnd);
}

void ObjectWriter::writeElement(const Element& element, bool writeNamespaces, bool force) {
    const TypeDescriptor* const row =
        KORVASchemaTypesFactory::isGeneratedType(element.type) ? findType(element.type) : nullptr;
    const bool isArray = row != nullptr && row->elementType != KORVASchemaTypeI::e_Unknown;
    if (element.object == nullptr && !isArray && !force && !m_writeNullElements) return;

    startLine(element.form.start, element.level);
    if (!element.name.empty()) put(element.name);
    if (writeNamespaces) wire::writeObjectNamespaces(m_stream);
    if (!m_isLiteral) writeType(element, row, isArray);
    if (element.object == nullptr)
        putBehindType(isArray ? wire::typeEndsEmptyTag : wire::typeEndsNilTag);
    else if (KORVASchemaTypesFactory::isGeneratedType(element.type))
        openObject(element);
    else
        writeValue(element);
}

void ObjectWriter::writeType(const Element& element, const TypeDescriptor* row, bool isArray) {
    if (isArray) {
        writeArrayType(KORVASchemaTypesFactory::objectTypeToArrayType(element.type),
                       element.object);
        return;
    }
    put(wire::typeAttribute);
    put(row != nullptr ? row->xsiName
                       : KORVASchemaTypesFactory::getInstance().objectTypeToXSIType(element.type));
}

void ObjectWriter::writeArrayType(const char* elementType, const void* array) {
    put(wire::arrayTypeAttributes);
    put(elementType);
    char brackets[16];
    char* end = brackets;
    *end++ = '[';
    if (array != nullptr) {
        const auto& elements = static_cast<const KORVASchemaTypeArrayI&>(asObject(array));
        end = std::to_chars(end, brackets + sizeof brackets,
                            static_cast<std::uint32_t>(elements.size()))
                  .ptr;
    }
    *end++ = ']';
    put({brackets, end});
}

void ObjectWriter::writeValue(const Element& element) {
    char digits[maxFloatText];
    switch (element.type) {
        case KORVASchemaTypeI::eString:
        case KORVASchemaTypeI::eTime:
        case KORVASchemaTypeI::eDateTime:
        case KORVASchemaTypeI::eQName: writeText(static_cast<const char*>(element.object)); break;
        case KORVASchemaTypeI::eInt:
        case KORVASchemaTypeI::eInteger: {
            const auto result = std::to_chars(digits, digits + maxIntText,
                                              *static_cast<const int*>(element.object));
            putBehindType(wire::typeEndsTag);
            put({digits, result.ptr});
            break;
        }
        case KORVASchemaTypeI::eDecimal:
        case KORVASchemaTypeI::eFloat: {
            const double value = *static_cast<const float*>(element.object);
            char* const end = std::to_chars(digits, digits + sizeof digits - 1, value,
                                            std::chars_format::fixed, 2)
                                  .ptr;
            *end = ' ';
            putBehindType(wire::typeEndsTag);
            put({digits, end + 1});
            break;
        }
        case KORVASchemaTypeI::eBoolean:
            putBehindType(wire::typeEndsTag);
            // Any byte but zero is true, whatever wrote it.
            put(*static_cast<const unsigned char*>(element.object) != 0 ? wire::trueText
                                                                        : wire::falseText);
            break;
        default: writeBinary(*static_cast<const KORVAXSBase64Binary*>(element.object)); break;
    }
    writeEndTag(element.form, element.name, 0);
}

// Ends the start tag and writes the text, or makes it the tag's reference to an attachment.
void ObjectWriter::writeText(const char* text) {
    if (!KORVA_CharStreamable::isCharStreamable(text)) {
        putBehindType(wire::typeEndsTag);
        BRIMXmlEncodeOutputStream encoder(m_stream);
        encoder.write(text, std::strlen(text));
        encoder.close();
        return;
    }
    const KORVA_CharStreamable streamable(text);
    if (streamable.getIsContentId()) {
        putBehindType(wire::typeThenContentId);
        streamable >> m_stream;
        put(wire::contentIdEndsTag);
        return;
    }
    putBehindType(wire::typeEndsTag);
    BRIMXmlEncodeOutputStream encoder(m_stream);
    streamable >> encoder;
    encoder.close();
}

void ObjectWriter::writeBinary(const KORVAXSBase64Binary& value) {
    putBehindType(value.getIsContentId() ? wire::typeThenContentId : wire::typeEndsTag);
    value.serialize(m_stream);
    if (value.getIsContentId()) put(wire::contentIdEndsTag);
}

void ObjectWriter::openObject(const Element& element) {
    if (m_frames.capacity() == 0) m_frames.reserve(initialFrames);
    Frame& frame = m_frames.emplace_back(element, !m_writeNullElements);
    if (frame.walk.empty()) {
        putBehindType(wire::typeEndsEmptyTag);
        m_frames.pop_back();
    } else if (frame.isMultiLine) {
        putBehindType(wire::typeEndsLine);
    }
}

void ObjectWriter::writeNextChild() {
    Frame& frame = m_frames.back();
    Child child;
    if (!frame.walk.next(child)) {
        closeObject();
        return;
    }
    const bool isGenerated = KORVASchemaTypesFactory::isGeneratedType(child.type);
    // What the child is wins over what it was declared as.
    if (isGenerated && child.value != nullptr) child.type = asObject(child.value).getObjectType();
    const int level = frame.level + 1;
    if (frame.walk.isArray()) {
        writeElement({itemForm, {}, child.value, child.type, level}, false, false);
    } else if (isGenerated || *child.name != '\0') {
        if (!frame.isOpened) putBehindType(wire::typeEndsTag);
        frame.isOpened = true;
        writeElement({childForm, child.name, child.value, child.type, level}, false, false);
    } else {
        writeContent(frame, child);
    }
}

// The object's own text, on the line of its tag.
void ObjectWriter::writeContent(Frame& frame, const Child& child) {
    const ObjectType childObjType = child.type;
    ZEL_ASSERT_NAMED(childObjType == KORVASchemaTypeI::eString,
                     "Conversion of text not currently supported.");
    if (child.value == nullptr) return;
    const auto* const text = static_cast<const char*>(child.value);
    if (!frame.isOpened) {
        frame.isOpened = true;
        writeText(text);
        return;
    }
    BRIMXmlEncodeOutputStream encoder(m_stream);
    if (KORVA_CharStreamable::isCharStreamable(text))
        KORVA_CharStreamable(text) >> encoder;
    else
        encoder.write(text, std::strlen(text));
    encoder.close();
}

void ObjectWriter::closeObject() {
    const Frame& frame = m_frames.back();
    if (!frame.isOpened) putBehindType(wire::typeEndsTag);
    writeEndTag(*frame.form, frame.name, frame.isMultiLine ? frame.level : 0);
    m_frames.pop_back();
}

}  // namespace korva
