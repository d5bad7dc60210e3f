// The one place that decides how an object looks on the wire.
#pragma once

#include "core/ChildWalk.h"
#include "core/Descriptor.h"
#include "soap/WireTokens.h"

#include <cstddef>
#include <string_view>
#include <vector>

class BRIMOutputStream;
class KORVAXSBase64Binary;

namespace korva {

/// Writes values to a stream as encoded elements, straight from the objects. The objects that are
/// open stand on a list, not on the call stack, so that depth is bounded by memory only.
///
/// After an exception a writer is of no more use.
class ObjectWriter {
public:
    enum class Style {
        Encoded,  ///< each element tells its type
        Literal   ///< no element does
    };

    /// @param writeNullElements write an element also for what is null and would be left out
    ObjectWriter(BRIMOutputStream& stream, bool writeNullElements, Style style = Style::Encoded);

    /// Writes one element at `indent` + 1 tabs. Null is left out unless it is an array's or
    /// `force` is set.
    /// @throws ZELAssertError see KORVASOAPSerializer
    void write(const void* object, ObjectType type, const char* qName, int indent,
               bool writeNamespaces, bool force);

private:
    struct Element {
        const wire::TagForm& form;
        std::string_view name;  ///< what follows the form's tokens
        const void* object;
        ObjectType type;
        int level;
    };

    /// An object whose start tag is written and whose children are being visited.
    struct Frame {
        Frame(const Element& element, bool skipUnset);

        ChildWalk walk;
        const wire::TagForm* form;
        std::string_view name;
        int level;
        bool isMultiLine;
        bool isOpened;  ///< the start tag has its ">"
    };

    void put(std::string_view token);
    void putBehindType(std::string_view token);

    void writeElement(const Element& element, bool writeNamespaces, bool force);
    void writeType(const Element& element, const TypeDescriptor* row, bool isArray);
    void writeArrayType(const char* elementType, const void* array);
    void writeValue(const Element& element);
    void writeText(const char* text);
    void writeBinary(const KORVAXSBase64Binary& value);

    void openObject(const Element& element);
    void writeNextChild();
    void writeContent(Frame& frame, const Child& child);
    void closeObject();

    void startLine(const wire::LineToken& token, int level);
    void writeEndTag(const wire::TagForm& form, std::string_view name, int level);

    BRIMOutputStream& m_stream;
    const bool m_writeNullElements;
    const bool m_isLiteral;
    std::vector<Frame> m_frames;
};

}  // namespace korva
