/// The references between the elements of a message.
#pragma once

#include "core/Descriptor.h"
#include "soap/read/ElementRecord.h"
#include "soap/read/ReadLimits.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace korva {

struct ReadingContext;

/// The value of an element.
struct ElementValue {
    ObjectType type = KORVASchemaTypeI::e_Unknown;
    /// An object, a binary, the NUL-terminated bytes of a text, or the place of a number. Null for
    /// a nil element.
    void* value = nullptr;
    std::size_t length = 0;  ///< of a text
    bool isNil = false;

    /// Of a generated type only.
    const KORVASchemaTypeI* object() const { return static_cast<const KORVASchemaTypeI*>(value); }
};

/// Where the value goes that an element has by reference.
struct ReferencePlace {
    enum class Kind : std::uint8_t {
        Field,  ///< of an object of the tables
        Item,   ///< of an array, which has a free slot for it
        Root    ///< of what is read: a parameter, a header entry, a document
    };

    Kind kind = Kind::Root;
    KORVASchemaTypeI* object = nullptr;      ///< the parent; null for a root
    const FieldDescriptor* field = nullptr;  ///< of Field
    std::size_t position = 0;                ///< of Item, from 0; the number of Root
    ObjectType declared = KORVASchemaTypeI::e_Unknown;
};

/// Takes the value of a root that is a reference.
class RootReceiver {
public:
    RootReceiver() = default;
    RootReceiver(const RootReceiver&) = delete;
    RootReceiver& operator=(const RootReceiver&) = delete;

    virtual void setRoot(std::size_t number, const ElementValue& value) = 0;

protected:
    ~RootReceiver() = default;
};

/// Collects references while a message is read, and stores the values that they lead to at its end.
///
/// The elements with an `id` are the nodes of a graph, and so is the message itself. A node leads
/// to those that stand in it, and to those that its elements refer to. An element behind the
/// operation is kept as a record and read when the first reference leads to it, which knows its
/// type. The graph is walked without recursion, and each node is done before those that lead to it.
///
/// Objects are shared by all who refer to them; numbers are copied, and so are the slots of arrays
/// that stand in their holders. What all this would be if it were written as a tree is limited.
class References {
public:
    /// @param context of the message, which must outlive this object
    References(ReadingContext& context, const ReadLimits& limits, RootReceiver& roots);

    /// The element `name` has the value of the element with this id.
    /// @throws KORVAException 0xEA4F0001: there are too many references
    void refer(const ReferencePlace& place, const char* name, std::string_view id);

    /// An element with an id begins, which holds all that comes until it is closed.
    void open(std::string_view id);
    /// The innermost open element ends.
    void close(const ElementValue& value);

    /// Elements and bytes of text were read.
    void weigh(std::size_t count) { m_nodes[m_open.back()].weight += count; }

    /// An element with an id that stands behind the operation. Its events go to the record.
    ElementRecord& record(std::string_view id, std::unique_ptr<ElementRecord> record);
    /// The newest record has an element with this id in it.
    void noteIdInRecord(std::string_view id);

    /// Stores the values of all references.
    /// @throws KORVAException 0xEA4F0012: there is no such element; 0xEA4F0013: there are several;
    ///     0xEA4F0014: it leads back to the reference; 0xEA4F0001: all that is referred to exceeds
    ///     the limit; and what reading a recorded element raises
    void resolve();

    /// Forgets all references that have not been resolved.
    void forget();

private:
    static constexpr std::size_t none = static_cast<std::size_t>(-1);
    static constexpr std::size_t message = 0;  ///< the node that is no element

    enum class State : std::uint8_t {
        Recorded,  ///< not read yet
        Read,
        Entered,  ///< the walk is in what it leads to
        Done
    };

    struct Node {
        State state = State::Read;
        bool isAmbiguous = false;
        const ElementRecord* record = nullptr;  ///< of an element behind the operation
        std::size_t holder = none;              ///< whose record it stands in, unless it is its own
        ElementValue value;
        std::size_t sameAs = none;          ///< the reference that it is itself
        std::uint64_t weight = 0;           ///< of itself
        std::uint64_t expanded = 0;         ///< with all that it leads to
        std::size_t firstReference = none;  ///< of those that stand in it
        std::size_t firstChild = none;
        std::size_t nextSibling = none;
    };

    struct Reference {
        ReferencePlace place;
        const char* name;
        std::string id;
        std::size_t target = none;  ///< when it was found
        std::size_t next;           ///< of the same node
    };

    /// A node that the walk has entered.
    struct Step {
        std::size_t node;
        std::size_t child;      ///< the next to enter
        std::size_t reference;  ///< the next to follow
    };

    std::size_t addNode(std::string_view id, State state);
    void addChild(std::size_t node);
    std::size_t targetOf(const Reference& reference);
    void read(std::size_t node, ObjectType declared);
    void enter(std::size_t node, std::vector<Step>& steps);
    bool advance(std::vector<Step>& steps);
    void leave(std::size_t index);
    void addExpanded(Node& node, std::size_t other) const;
    void store(const Reference& reference, const ElementValue& value);
    void storeField(const Reference& reference, const ElementValue& value);
    void storeArray(KORVASchemaTypeI& target, const ElementValue& value);
    void storeItem(const Reference& reference, const ElementValue& value);
    void dropEmptyItems();
    [[noreturn]] void refuseExpansion() const;

    ReadingContext& m_context;
    const ReadLimits& m_limits;
    RootReceiver& m_roots;
    std::vector<Node> m_nodes;
    std::map<std::string, std::size_t, std::less<>> m_ids;
    std::vector<Reference> m_references;
    std::vector<std::unique_ptr<ElementRecord>> m_records;
    std::size_t m_newestRecord = none;  ///< its node
    std::vector<std::size_t> m_open;    ///< nodes whose elements are open, innermost at the back
    std::size_t m_reading = none;       ///< the node whose record is told
    std::uint64_t m_largest = 0;        ///< what the message may be, written as a tree
    std::uint64_t m_copied = 0;         ///< slots of arrays

    /// Items whose element is nil: they are left out, as nil items are.
    struct EmptyItem {
        KORVASchemaTypeI* array;
        std::size_t position;
    };
    std::vector<EmptyItem> m_emptyItems;
};

}  // namespace korva
