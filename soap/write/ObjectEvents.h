/// The one place that decides how an object looks as elements: which there are, and the name, the
/// type and the text of each.
#pragma once

#include "core/ChildWalk.h"
#include "core/CycleCheck.h"
#include "core/Descriptor.h"
#include "soap/write/InvalidText.h"
#include "types/Numbers.h"
#include "types/PlainTypes.h"

#include <i18n/KORVAI18NRes.h>
#include <korva/KORVASchemaTypeArrayI.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_CharStreamable.h>
#include <zel/ZELAssert.h>

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace korva {

/// What stands before the name of a child.
inline constexpr std::string_view childPrefix = KORVAI18NRes::busPrefix();
/// The name of all entries of arrays.
inline constexpr std::string_view itemName = "item";

struct ElementName {
    enum Form {
        Root,        ///< as the caller gave it
        Child,       ///< a word of the schema, behind the prefix
        GivenChild,  ///< the same for a name that somebody else's class gave
        Item         ///< the same for all, and empty here
    };

    Form form;
    std::string_view text;
};

/// Walks an object and tells a sink of its elements. The objects that are open stand on a list, not
/// on the call stack, so that depth is bounded by memory only.
///
/// A sink is a class with these operations, called in this order for each element:
///
///     setPlace(place)                  who knows at any time where the walk is; comes first
///     startElement(name, depth)        the element begins, below `depth` others
///     type(text)                       its type, or
///     arrayType(elementType, brackets) its type in two pieces: "bus:schedule" and "[2]"
///     endNull(isArray)                 ends it as null, or
///     endEmpty()                       ends it as an object that never has children, or
///     openChildren()                   its children follow, or
///     openText()                       its text follows, or
///     reference(write)                 it refers to an attachment; write(stream) writes the id
///     value(text)                      a text without markup
///     characters(write)                write(stream) writes a text that may hold markup
///     base64(write)                    the same for one that has none
///     endElement(name, depth, hasChildren)
///
/// After an exception a walk is of no more use.
template <class Sink>
class ObjectEvents final : public TextPlace {
public:
    /// @param sink must outlive the walk
    /// @param writeNullElements tell also of what is null and would be left out
    ObjectEvents(Sink& sink, bool writeNullElements)
        : m_sink(sink), m_writeNullElements(writeNullElements) {
        m_sink.setPlace(*this);
    }
    ObjectEvents(const ObjectEvents&) = delete;
    ObjectEvents& operator=(const ObjectEvents&) = delete;

    /// Tells of one value. Null is left out unless it is an array's or `force` is set.
    /// @throws ZELAssertError `type` cannot be written, or an enumeration has no value
    /// @throws KORVAException 0xEA4F0005: the object holds itself
    void write(const void* object, ObjectType type, const ElementName& name, bool force) {
        writeElement({name, object, type}, force);
        while (!m_frames.empty())
            writeNextChild();
    }

    /// What stands around the values, for paths: "/run". The text outlives the walk.
    void setParent(std::string_view path) { m_parent = path; }

    /// Of the element that the walk is at.
    std::string path() const override;

private:
    struct Element {
        ElementName name;
        const void* object;
        ObjectType type;
    };

    /// An object whose children are being visited.
    struct Frame {
        Frame(const Element& element, const TypeDescriptor* row, bool skipUnset)
            : walk(asObject(element.object), row, skipUnset),
              name(element.name),
              hasChildren(!walk.isContent()),
              isOpened(hasChildren) {}

        ChildWalk walk;
        ElementName name;
        bool hasChildren;
        bool isOpened;  ///< the sink knows what follows
    };

    static constexpr std::size_t initialFrames = 16;
    /// How many names of a path are told at either end of it.
    static constexpr std::size_t toldNames = 32;

    static const KORVASchemaTypeI& asObject(const void* object) {
        return *static_cast<const KORVASchemaTypeI*>(object);
    }

    void writeElement(const Element& element, bool force);
    void writeArrayType(const char* elementType, const void* array);
    void writeValue(const Element& element);
    void writeText(const char* text);
    void writeBinary(const KORVAXSBase64Binary& value);

    void openObject(const Element& element, const TypeDescriptor* row);
    void writeNextChild();
    void writeContent(Frame& frame, const Child& child);
    void closeObject();

    static void appendName(const ElementName& name, const Frame* parent, std::string& path);

    Sink& m_sink;
    const bool m_writeNullElements;
    std::vector<Frame> m_frames;
    const ElementName* m_leaf = nullptr;  ///< of the value that is being written
    std::string_view m_parent;
    DepthWatch m_watch;
};

template <class Sink>
void ObjectEvents<Sink>::writeElement(const Element& element, bool force) {
    const TypeDescriptor* const row =
        KORVASchemaTypesFactory::isGeneratedType(element.type) ? findType(element.type) : nullptr;
    const bool isArray = row != nullptr && row->elementType != KORVASchemaTypeI::e_Unknown;
    if (element.object == nullptr && !isArray && !force && !m_writeNullElements) return;

    m_sink.startElement(element.name, m_frames.size());
    if (isArray)
        writeArrayType(KORVASchemaTypesFactory::objectTypeToArrayType(element.type),
                       element.object);
    else
        m_sink.type(row != nullptr
                        ? row->xsiName
                        : KORVASchemaTypesFactory::getInstance().objectTypeToXSIType(element.type));
    if (element.object == nullptr)
        m_sink.endNull(isArray);
    else if (KORVASchemaTypesFactory::isGeneratedType(element.type))
        openObject(element, row);
    else
        writeValue(element);
}

template <class Sink>
void ObjectEvents<Sink>::writeArrayType(const char* elementType, const void* array) {
    char brackets[40];
    char* end = brackets;
    *end++ = '[';
    if (array != nullptr) {
        const auto& elements = static_cast<const KORVASchemaTypeArrayI&>(asObject(array));
        end = std::to_chars(end, brackets + sizeof brackets,
                            static_cast<std::uint32_t>(elements.size()))
                  .ptr;
    }
    *end++ = ']';
    m_sink.arrayType(elementType, {brackets, end});
}

template <class Sink>
void ObjectEvents<Sink>::writeValue(const Element& element) {
    const ObjectType objType = element.type;
    m_leaf = &element.name;
    const FieldKind kind = types::kindOf(objType);
    switch (kind) {
        case FieldKind::Text: writeText(static_cast<const char*>(element.object)); break;
        case FieldKind::Binary:
            writeBinary(*static_cast<const KORVAXSBase64Binary*>(element.object));
            break;
        case FieldKind::Object:
            ZEL_ASSERT_NAMED(KORVASchemaTypesFactory::getInstance().isGeneratedType( objType ), "Only generated object types can be serialized at this point.");
            break;
        default:
            types::visitValue(kind, [&](auto value) {
                types::ValueText text;
                value = types::valueAt<decltype(value)>(element.object);
                m_sink.openText();
                m_sink.value(types::print(value, text));
            });
    }
    m_sink.endElement(element.name, m_frames.size(), false);
    m_leaf = nullptr;
}

/// The text, or the reference to an attachment that stands for it.
template <class Sink>
void ObjectEvents<Sink>::writeText(const char* text) {
    if (!KORVA_CharStreamable::isCharStreamable(text)) {
        m_sink.openText();
        m_sink.characters([text](auto& stream) { stream.write(text, std::strlen(text)); });
        return;
    }
    const KORVA_CharStreamable streamable(text);
    const auto write = [&streamable](auto& stream) { streamable >> stream; };
    if (streamable.getIsContentId()) {
        m_sink.reference(write);
    } else {
        m_sink.openText();
        m_sink.characters(write);
    }
}

template <class Sink>
void ObjectEvents<Sink>::writeBinary(const KORVAXSBase64Binary& value) {
    const auto write = [&value](auto& stream) { value.serialize(stream); };
    if (value.getIsContentId()) {
        m_sink.reference(write);
    } else {
        m_sink.openText();
        m_sink.base64(write);
    }
}

template <class Sink>
void ObjectEvents<Sink>::openObject(const Element& element, const TypeDescriptor* row) {
    if (m_frames.capacity() == 0) m_frames.reserve(initialFrames);
    if (m_watch.isDue(m_frames.size())) refuseCycle(asObject(element.object));
    const ObjectType type = asObject(element.object).getObjectType();
    if (type != element.type) row = findType(type);
    const Frame& frame = m_frames.emplace_back(element, row, !m_writeNullElements);
    if (frame.walk.empty()) {
        m_sink.endEmpty();
        m_frames.pop_back();
    } else if (frame.hasChildren) {
        m_sink.openChildren();
    }
}

template <class Sink>
void ObjectEvents<Sink>::writeNextChild() {
    Frame& frame = m_frames.back();
    Child child;
    if (!frame.walk.next(child)) {
        closeObject();
        return;
    }
    const bool isGenerated = KORVASchemaTypesFactory::isGeneratedType(child.type);
    // What the child is wins over what it was declared as.
    if (isGenerated && child.value != nullptr) child.type = asObject(child.value).getObjectType();
    if (frame.walk.isArray()) {
        writeElement({{ElementName::Item, {}}, child.value, child.type}, false);
    } else if (isGenerated || *child.name != '\0') {
        if (!frame.isOpened) m_sink.openText();
        frame.isOpened = true;
        const auto form = frame.walk.isDescribed() ? ElementName::Child : ElementName::GivenChild;
        writeElement({{form, child.name}, child.value, child.type}, false);
    } else {
        writeContent(frame, child);
    }
}

/// The object's own text.
template <class Sink>
void ObjectEvents<Sink>::writeContent(Frame& frame, const Child& child) {
    const ObjectType childObjType = child.type;
    ZEL_ASSERT_NAMED(childObjType == KORVASchemaTypeI::eString,
                     "Conversion of text not currently supported.");
    if (child.value == nullptr) return;
    const auto* const text = static_cast<const char*>(child.value);
    if (!frame.isOpened) {
        frame.isOpened = true;
        writeText(text);
    } else if (KORVA_CharStreamable::isCharStreamable(text)) {
        m_sink.characters([text](auto& stream) { KORVA_CharStreamable(text) >> stream; });
    } else {
        m_sink.characters([text](auto& stream) { stream.write(text, std::strlen(text)); });
    }
}

template <class Sink>
void ObjectEvents<Sink>::appendName(const ElementName& name, const Frame* parent,
                                    std::string& path) {
    path += '/';
    if (name.form == ElementName::Item && parent != nullptr) {
        path += itemName;
        path += '[' + std::to_string(parent->walk.position()) + ']';
    } else {
        path += name.text.substr(name.text.find(':') + 1);
    }
}

template <class Sink>
std::string ObjectEvents<Sink>::path() const {
    std::string path(m_parent);
    const Frame* parent = nullptr;
    for (const Frame& frame : m_frames) {
        const auto position = static_cast<std::size_t>(&frame - m_frames.data());
        if (position < toldNames || position + toldNames >= m_frames.size())
            appendName(frame.name, parent, path);
        else if (position == toldNames)
            path += "/...";
        parent = &frame;
    }
    if (m_leaf != nullptr) appendName(*m_leaf, parent, path);
    return path;
}

template <class Sink>
void ObjectEvents<Sink>::closeObject() {
    const Frame& frame = m_frames.back();
    if (!frame.isOpened) m_sink.openText();
    m_sink.endElement(frame.name, m_frames.size() - 1, frame.hasChildren);
    m_frames.pop_back();
}

}  // namespace korva
