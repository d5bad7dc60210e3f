/// The plain model of a vocabulary: what the readers found, and behind it what the passes decided.
#pragma once

#include "generator/model/Location.h"
#include "types/Kinds.h"
#include "types/PlainTypes.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace korva::schemac::model {

using types::PlainType;
using types::TypeKind;

/// How a field is kept, and so which accessors it gets. A parameter of a message is never an
/// EmbeddedArray: its arrays are kept by pointer, as Object.
using types::FieldKind;

/// How many units each family is spread over. The build lists the units, so a number changes here
/// and there at once.
inline constexpr unsigned kClassUnits = 8;
inline constexpr unsigned kPropertyUnits = 2;
inline constexpr unsigned kArrayUnits = 2;
inline constexpr unsigned kMessageUnits = 4;
inline constexpr unsigned kPortTypeUnits = 2;

struct Type;

/// The use of a type by name.
struct TypeReference {
    Location at;
    std::string text;  ///< as written, prefix included
    std::string uri;   ///< what the prefix stands for; empty when it is not declared
    std::string name;  ///< the local part

    // Decided by the pass "references"; neither is set when the reference is an error.
    PlainType plain = PlainType::None;
    const Type* type = nullptr;

    bool resolved() const { return plain != PlainType::None || type != nullptr; }
};

/// An element of a class, or a part of a message.
struct Field {
    Location at;
    std::string name;
    TypeReference reference;
    std::string documentation;
    bool supplied = false;  ///< the word was chosen, not documented

    // Decided by "kinds", "names" and "identities".
    FieldKind kind = FieldKind::Object;
    std::string member;           ///< name in the record: the wire name, or that and "_"
    std::string stem;             ///< "DailyPeriod", as in getDailyPeriod
    std::int32_t identity = 0;    ///< CRC-32 of the name
    std::int32_t objectType = 0;  ///< declared type: a plain type's number or an identity
    bool createsOnGet = false;    ///< an object of a concrete type

    /// Decided by "order", in classes: the position among the slots of an object, or among its
    /// arrays; inherited fields come first.
    std::size_t place = 0;
};

/// One value of an enumeration.
struct Word {
    Location at;
    std::string text;
    std::string documentation;
    bool supplied = false;

    // Decided by "names" and "identities".
    std::string enumerator;  ///< "eKORVADebug"
    std::int32_t identity = 0;
};

/// What a type looks like in the source; the pass "kinds" tells properties from classes.
enum class TypeForm { Record, Array, Enumeration, RestrictedString };

inline constexpr int kUnknownCount = -1;

struct Type {
    Location at;
    TypeForm form = TypeForm::Record;
    std::string name;
    std::string documentation;
    bool isAbstract = false;
    bool openFields = false;  ///< the fields of the class are not documented
    /// Values known to exist whose word is not documented; kUnknownCount when it is not known
    /// how many.
    int openWords = 0;
    std::optional<TypeReference> base;
    std::vector<Field> fields;  ///< own fields, in declared order
    TypeReference element;      ///< arrays only
    std::vector<Word> words;    ///< enumerations only, in declared order

    // Decided by the passes.
    TypeKind kind = TypeKind::Class;
    std::string className;  ///< "KORVASchedule"
    std::int32_t identity = 0;
    unsigned depth = 0;  ///< number of base classes above this one
    std::size_t inheritedFields = 0;
    std::size_t slots = 0;   ///< fields of an object that are no arrays, inherited ones included
    std::size_t arrays = 0;  ///< its other fields
    unsigned unit = 0;       ///< 1-based, of the family's units
    /// A hash table of the own fields: a field stands at the lowest bits of the CRC of its name, or
    /// at the next entry that is free, the first one being next to the last. An entry is the
    /// field's position plus one; 0 is free.
    std::vector<std::size_t> hashes;
    FieldKind elementKind = FieldKind::Object;  ///< arrays only
    std::int32_t elementObjectType = 0;         ///< arrays only
    /// "schedule[]" when this is the array that stands for its element type, else empty.
    std::string arrayKey;

    const Type* baseType() const { return base ? base->type : nullptr; }
    bool isA(const Type& other) const;
};

inline constexpr std::string_view kRequestSuffix = "_Request";
inline constexpr std::string_view kReplySuffix = "_Reply";

/// The use of a message, a port type or an element by name.
struct QName {
    Location at;
    std::string text;
    std::string uri;
    std::string name;
};

struct Message {
    Location at;
    std::string uri;
    std::string name;  ///< "asynchRun_Request"
    std::string documentation;
    std::vector<Field> params;
    std::vector<QName> elements;  ///< what its parts name instead of types, in a header's message

    // Decided by the passes.
    std::string className;  ///< "KORVAAsynchRun_Request"
    std::int32_t identity = 0;
    bool isRequest = false;
    unsigned unit = 0;  ///< 1-based, of the messages' units
};

struct Operation {
    Location at;
    std::string name;
    std::string inputName;  ///< tells overloads apart
    std::string documentation;
    QName input;
    QName output;

    // Decided by the pass "operations".
    const Message* request = nullptr;
    const Message* reply = nullptr;
    std::string action;
};

/// One entry of a port type's map from operation to messages.
struct OperationRow {
    std::string name;
    std::string requestClass;
    std::string replyClass;
    std::string action;
};

/// One entry of a port type's map from operation and parameter to a type.
struct OperationParam {
    std::string key;  ///< "run-options"
    const Field* param = nullptr;
};

struct PortType {
    Location at;
    std::string uri;
    std::string name;
    std::string documentation;
    std::vector<Operation> operations;  ///< in table order

    // Decided by "names" and "operations".
    std::string className;  ///< "KORVADispatcherPortType"
    std::string boundNamespace;
    unsigned unit = 0;  ///< 1-based, of the port types' units
    /// The pair of messages without name and parameters, which binds to the empty name; then by
    /// name, versions of one name in table order.
    std::vector<OperationRow> rows;
    std::vector<OperationParam> params;  ///< by key, each once: the first version's type holds
};

struct BindingOperation {
    Location at;
    std::string name;
    std::string inputName;
    std::string action;
    std::string bodyNamespace;
};

struct Binding {
    Location at;
    std::string name;
    QName portType;
    std::vector<BindingOperation> operations;
};

/// Where to look in a list that is sorted by unsigned identity.
struct TopBitsIndex {
    unsigned bits = 0;
    /// For each value of an identity's top `bits` the first position, and behind them the end.
    std::vector<std::size_t> starts;
};

/// A text of the word table.
struct TableWord {
    std::int32_t identity = 0;
    std::string text;
};

/// A whole vocabulary. Items live in deques, so that pointers between them stay valid while the
/// readers append.
struct Schema {
    std::string uri;                 ///< target namespace of the types
    std::vector<std::string> files;  ///< every file read, in reading order
    std::deque<Type> types;
    std::vector<Field> elements;  ///< those of the top level: the entries of headers
    std::deque<Message> messages;
    std::vector<PortType> portTypes;
    std::vector<Binding> bindings;
    std::vector<QName> headerMessages;  ///< messages that only a soap:header refers to

    /// The classes that stand beside the generated ones, so that no item may be called thus.
    std::set<std::string, std::less<>> handWritten;

    // Decided by the passes.
    std::map<std::string, Type*, std::less<>> typesByName;
    std::vector<const Type*> byName;      ///< all types, by the bytes of their names
    std::vector<const Type*> classes;     ///< bases before derived classes, then by name
    std::vector<const Type*> properties;  ///< by name, as the three that follow
    std::vector<const Type*> arrays;
    std::vector<const Type*> enums;
    std::vector<const Type*> restrictedStrings;
    std::vector<const Type*> byIdentity;   ///< all types, by unsigned identity
    std::vector<const Type*> arraysByKey;  ///< those with an array key, by its bytes
    std::vector<const Message*> messagesByName;
    std::vector<const Message*> messagesByIdentity;  ///< by signed identity
    std::vector<TableWord> words;                    ///< by unsigned identity, each text once
    TopBitsIndex typeIndex;                          ///< of byIdentity
    TopBitsIndex wordIndex;                          ///< of words

    /// The file that stands for all messages, or all port types, in what is made from them.
    const std::string& messagesFile() const;
    const std::string& portTypesFile() const;

    const Type* find(std::string_view name) const;

    /// Whether only a soap:header refers to the message.
    bool isHeader(const Message& message) const;
};

/// "0x5A3811FB", an identity as an unsigned number.
std::string hexOf(std::int32_t identity);

}  // namespace korva::schemac::model
