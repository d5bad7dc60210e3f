#include "korva/KORVA_Children.h"

#include "core/ChildWalk.h"
#include "core/NumberedError.h"

#include <i18n/KORVAMessageId.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_ArrayObject.h>
#include <korva/KORVA_CharStreamable.h>
#include <korva/KORVA_EnumObject.h>
#include <korva/KORVA_RestrictedString.h>
#include <zel/ZELFrame.h>

#include <charconv>
#include <string_view>
#include <utility>

using Factory = KORVASchemaTypesFactory;

namespace {

bool isInt(KORVA_Child::ObjectType type) {
    return type == KORVASchemaTypeI::eInt || type == KORVASchemaTypeI::eInteger;
}

bool isFloat(KORVA_Child::ObjectType type) {
    return type == KORVASchemaTypeI::eFloat || type == KORVASchemaTypeI::eDecimal;
}

template <class Number>
std::string digits(Number number) {
    char text[64];
    return std::string(text, std::to_chars(text, text + sizeof text, number).ptr);
}

/// The text of an object that consists of text; null for any other object, and while it has none.
const char* contentOf(const KORVASchemaTypeI& object) {
    if (const auto* const text = dynamic_cast<const KORVA_RestrictedString*>(&object))
        return text->getValue();
    if (const auto* const enumeration = dynamic_cast<const KORVA_EnumObject*>(&object)) {
        const char* const word = enumeration->toString();
        return *word != '\0' ? word : nullptr;
    }
    return nullptr;
}

bool hasContent(const KORVASchemaTypeI& object) {
    return dynamic_cast<const KORVA_RestrictedString*>(&object) != nullptr ||
           dynamic_cast<const KORVA_EnumObject*>(&object) != nullptr;
}

std::string describeObject(const KORVASchemaTypeI& object) {
    if (const char* const text = contentOf(object)) return KORVA_CharStreamable::toText(text);
    std::string result = object.generatedObjectName();
    if (const auto* const array = dynamic_cast<const KORVA_ArrayObject*>(&object))
        result += '[' + digits(array->size()) + ']';
    return result;
}

[[noreturn]] void refuse(const KORVA_Child& child, const char* expected) {
    std::string name;
    std::string found;
    ZEL_TRY {
        name = child.name();
        found = "a value of the type ";
        if (child.isObject() && !child.isNull())
            found += child.asObject()->generatedObjectName();
        else
            found += Factory::getInstance().objectTypeToXSIType(child.type());
    }
    ZEL_CATCH(nullptr);
    KORVA_RAISE(eKORVA_WrongKind, "KORVA_Child", expected, name.c_str(), found.c_str());
}

}  // namespace

std::string KORVA_Child::name() const {
    ZEL_TRY {
        return m_name != nullptr ? std::string(m_name) : digits(m_index);
    }
    ZEL_CATCH(nullptr);
}

bool KORVA_Child::isObject() const {
    return Factory::isGeneratedType(m_type);
}

bool KORVA_Child::isText() const {
    return Factory::isString(m_type);
}

std::optional<std::string> KORVA_Child::asText() const {
    const char* text = nullptr;
    if (isText())
        text = static_cast<const char*>(m_value);
    else if (!isObject() || (m_value != nullptr && !hasContent(*asObject())))
        refuse(*this, "A text");
    else if (m_value != nullptr)
        text = contentOf(*asObject());
    if (text == nullptr) return std::nullopt;
    return KORVA_CharStreamable::toText(text);
}

std::optional<int> KORVA_Child::asInt() const {
    if (!isInt(m_type)) refuse(*this, "A whole number");
    if (m_value == nullptr) return std::nullopt;
    return *static_cast<const int*>(m_value);
}

std::optional<bool> KORVA_Child::asBoolean() const {
    if (m_type != KORVASchemaTypeI::eBoolean) refuse(*this, "A boolean");
    if (m_value == nullptr) return std::nullopt;
    return *static_cast<const bool*>(m_value);
}

std::optional<float> KORVA_Child::asFloat() const {
    if (!isFloat(m_type)) refuse(*this, "A float or decimal");
    if (m_value == nullptr) return std::nullopt;
    return *static_cast<const float*>(m_value);
}

KORVASchemaTypeI* KORVA_Child::asObject() const {
    if (!isObject()) refuse(*this, "An object");
    return static_cast<KORVASchemaTypeI*>(m_value);
}

const KORVAXSBase64Binary* KORVA_Child::asBinary() const {
    if (!Factory::isBase64(m_type)) refuse(*this, "A binary");
    return static_cast<const KORVAXSBase64Binary*>(m_value);
}

const char* KORVA_Child::asCharStar() const {
    if (!isText()) refuse(*this, "A text");
    return static_cast<const char*>(m_value);
}

std::string KORVA_Child::describe() const {
    ZEL_TRY {
        if (m_value == nullptr) return "null";
        if (isText()) return KORVA_CharStreamable::toText(static_cast<const char*>(m_value));
        if (isInt(m_type)) return digits(*asInt());
        if (isFloat(m_type)) return digits(*asFloat());
        if (m_type == KORVASchemaTypeI::eBoolean) return *asBoolean() ? "true" : "false";
        if (isObject()) return describeObject(*asObject());
        const KORVAXSBase64Binary& binary = *asBinary();
        return binary.streamable() != nullptr ? "streamed bytes"
                                              : digits(binary.pcount()) + " bytes";
    }
    ZEL_CATCH("KORVA_Child::describe");
}

KORVA_Children::KORVA_Children(const KORVASchemaTypeI& object) {
    ZEL_TRY {
        if (dynamic_cast<const KORVA_EnumObject*>(&object) != nullptr) {
            // One that is not set refuses to be asked by name.
            m_children.emplace_back("", KORVASchemaTypeI::eString,
                                    const_cast<char*>(contentOf(object)));
            return;
        }
        m_children.reserve(object.getChildObjectCount());
        korva::ChildWalk walk(object, false);
        for (korva::Child child; walk.next(child);) {
            if (walk.isArray())
                m_children.emplace_back(walk.position() - 1, child.type, child.value);
            else
                m_children.emplace_back(child.name, child.type, child.value);
        }
    }
    ZEL_CATCH("KORVA_Children::KORVA_Children");
}

KORVA_Children::KORVA_Children(std::vector<KORVA_Child>&& children) noexcept
    : m_children(std::move(children)) {}
