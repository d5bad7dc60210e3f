/// The reader of one value: a parameter, a header entry, or what a document holds.
#pragma once

#include "core/Descriptor.h"
#include "soap/read/DocumentReceiver.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class KORVA_AttachmentHandler;
class KORVA_String;

namespace korva {

struct ReadingContext;
struct ReferencePlace;
struct TypeAttributes;

/// Builds a typed value from an element and all that it holds. What is built belongs to the
/// registry, also after a failure. What it raises, KORVASchemaTypeIContentHandler tells.
///
/// The elements under construction stand on a list, one frame each, and the newest frame's kind is
/// the state of the reader. A skipped element is one frame, whatever it holds.
class ValueReader {
public:
    /// @param context must outlive the reader
    explicit ValueReader(ReadingContext& context);
    ValueReader(const ValueReader&) = delete;
    ValueReader& operator=(const ValueReader&) = delete;
    ~ValueReader();

    /// Begins with a root of which the parent knows the type, or e_Unknown.
    /// @param declaredType what the root is that tells no type, and whose parent does not insist on
    ///     one
    /// @param number by which References tells the value of a root that is a reference
    void startRoot(const Element& element, ObjectType expectedType,
                   ObjectType declaredType = KORVASchemaTypeI::e_Unknown, std::size_t number = 0);
    /// Begins with a root of which only the root knows the type.
    void startDocumentRoot(const Element& element);
    void startElement(const Element& element);
    void text(std::string_view piece) {
        if (takesText())
            append(piece);
        else
            refuseText();
    }
    /// Ends the innermost element.
    /// @return the value of a root that is an object, otherwise null
    KORVASchemaTypeI* endElement();

    bool isEmpty() const { return m_objStack.empty(); }
    bool isSkipping() const {
        return !m_objStack.empty() && m_objStack.back().kind == Kind::Skipped;
    }
    /// Whether text that comes now is part of a value.
    bool takesText() const { return !m_objStack.empty() && isMadeOfText(m_objStack.back()); }

    /// Whether the innermost element has the value of another, which is told later.
    bool isReference() const { return isSkipping() && m_objStack.back().refers; }

    /// Ends a root whose value was asked for, so that others may refer to it.
    void endRoot();

    /// The type of the innermost element; e_Unknown in a skipped one.
    /// @throws ZELAssertError there is none
    ObjectType type() const;
    /// Ends the text of the innermost element and gives its value. Null for a nil element, in a
    /// skipped one, and when there is none.
    void* value();

    /// The path of the innermost element, from the root on, and how deep it is.
    std::string path() const;
    std::size_t depth() const { return m_objStack.size(); }

    /// @throws ZELAssertError an element has not ended
    void assertNothingIsOpen() const;

    /// Forgets all frames.
    void clear() {
        m_objStack.clear();
        m_identified.clear();
    }

private:
    /// What an element is, and so what may stand in it.
    enum class Kind : std::uint8_t {
        Fields,   ///< an object of the tables; its children are its fields
        Items,    ///< an array; its children are its items
        Asked,    ///< an object that stands in no table; it is asked about each child
        Content,  ///< an object that is made of its text
        Text,     ///< a text
        Binary,   ///< a binary, made of its text
        Number,   ///< a number or boolean, made of its text
        Made,     ///< one of the last four, its value being made: what follows is nobody's
        Nil,      ///< nothing may stand in it
        Skipped   ///< nobody's, with all that it holds
    };

    struct Frame {
        Kind kind;
        /// Stands for the attachment m_contentId: nothing may stand in it. Of Skipped: stands for
        /// another element.
        bool refers;
        ObjectType type;   ///< of the value
        const char* name;  ///< null in undocumented details
        /// The object, text or binary as the registry has it; the place of a number. Null before
        /// the text made it.
        void* value;
        const ClassDescriptor* fields;  ///< of Fields
        /// Which field of the parent's record takes the value when the text has made it, or null.
        const FieldDescriptor* field;
        std::size_t length;  ///< of Skipped: the elements open in it; of a text made: its bytes
    };

    class Decoding;

    void append(std::string_view piece);
    void refuseText() const;

    static bool isMadeOfText(const Frame& frame) {
        return !frame.refers && frame.kind >= Kind::Content && frame.kind <= Kind::Number;
    }
    static KORVASchemaTypeI* objectOf(const Frame& frame) {
        return static_cast<KORVASchemaTypeI*>(frame.value);
    }

    const Frame& top() const;
    Frame& top();
    bool isRoot(const Frame& frame) const { return &frame == m_objStack.data(); }

    Frame& push(Kind kind, const char* name, ObjectType type, void* value = nullptr);
    Frame& pushNew(const char* name, ObjectType type);
    Frame& pushObject(const char* name, ObjectType type, KORVASchemaTypeI* object);
    void skip(const char* name);
    void startText(const TypeAttributes& told);

    void noteShared(const Element& element) const;
    bool isReference(const Element& element) const;
    void startReference(const Element& element, const ReferencePlace& place);
    bool startReferringChild(const Element& element);
    void identify(const Element& element);
    void endIdentified();
    ObjectType asDeclared(ObjectType type, ObjectType declared, const Element& element);

    bool startField(const Element& element, const TypeAttributes& told);
    void startFieldOf(const FieldDescriptor& field, Record& record, const Element& element,
                      ObjectType xsiType);
    bool startItem(const Element& element, const TypeAttributes& told);
    void startAsked(const Element& element, const TypeAttributes& told);
    void startUndocumentedDetail();
    void startDetailMessage(const char* name);

    void makeValue(Frame& frame);
    void makeText(Frame& frame);
    void makeNumber(const Frame& frame, void* place);
    void decodeAhead();
    void makeBinary(Frame& frame);
    void makeContent(Frame& frame);
    bool makeWord(const Frame& frame);
    void setOnParent(const Frame& child);
    std::size_t setText(const Frame& parent, const Frame& child);
    std::size_t setNumber(KORVASchemaTypeI& parent, const Frame& child);
    void* makeNumberOfRoot(ObjectType type);
    void* makeAttachedValue(ObjectType type);
    template <class Assertion>
    KORVA_AttachmentHandler& requireHandler(Assertion assertion) const;
    KORVA_AttachmentHandler& handlerOfText() const;
    void registerReference(KORVASchemaTypeI& object, std::size_t position);
    KORVASchemaTypeI* makeObject(ObjectType type);
    KORVA_String* takeText();
    char* keepText();

    ReadingContext& m_context;
    std::vector<Frame> m_objStack;          ///< newest at the back
    std::vector<std::size_t> m_identified;  ///< depths of frames to which others may refer
    std::string m_contentId;
    std::unique_ptr<Decoding> m_decoding;  ///< of a large binary whose text is coming, or null
    std::size_t m_decodingSize = 0;        ///< how much text is collected before it is decoded
};

}  // namespace korva
