#include "generator/passes/Passes.h"

#include <algorithm>
#include <array>

namespace korva::schemac::passes {

using namespace model;

namespace {

// What an item costs to compile beside its fields, in fields.
constexpr std::size_t kFixedCost = 4;

// Gives items to units so that no unit gets much more to compile than another: each to the unit
// with the least so far.
template <unsigned Units>
class Spread {
public:
    unsigned take(std::size_t fields) {
        const auto least = std::min_element(m_load.begin(), m_load.end());
        *least += kFixedCost + fields;
        return static_cast<unsigned>(least - m_load.begin()) + 1;
    }

private:
    std::array<std::size_t, Units> m_load{};
};

// The base, if there is one, has its places already.
void placeFields(Type& type) {
    if (const Type* base = type.baseType()) {
        type.slots = base->slots;
        type.arrays = base->arrays;
    }
    for (Field& field : type.fields)
        field.place = field.kind == FieldKind::EmbeddedArray ? type.arrays++ : type.slots++;
}

void orderTypes(Schema& schema) {
    std::vector<Type*> all;
    for (const auto& [name, type] : schema.typesByName)
        all.push_back(type);
    schema.byName.assign(all.begin(), all.end());
    schema.byIdentity = schema.byName;
    std::sort(schema.byIdentity.begin(), schema.byIdentity.end(),
              [](const Type* left, const Type* right) {
                  return unsignedIdentity(left->identity) < unsignedIdentity(right->identity);
              });
    std::stable_sort(all.begin(), all.end(), [](const Type* left, const Type* right) {
        return left->depth < right->depth;
    });
    for (Type* type : all)
        placeFields(*type);
    Spread<kClassUnits> classes;
    Spread<kPropertyUnits> properties;
    Spread<kArrayUnits> arrays;
    for (Type* type : all) {
        type->unit = 1;
        switch (type->kind) {
            case TypeKind::Class:
                type->unit = classes.take(type->fields.size());
                schema.classes.push_back(type);
                break;
            case TypeKind::Property:
                type->unit = properties.take(type->fields.size());
                schema.properties.push_back(type);
                break;
            case TypeKind::Array:
                type->unit = arrays.take(0);
                schema.arrays.push_back(type);
                if (!type->arrayKey.empty()) schema.arraysByKey.push_back(type);
                break;
            case TypeKind::Enum: schema.enums.push_back(type); break;
            case TypeKind::RestrictedString: schema.restrictedStrings.push_back(type); break;
        }
    }
    std::sort(schema.arraysByKey.begin(), schema.arraysByKey.end(),
              [](const Type* left, const Type* right) { return left->arrayKey < right->arrayKey; });
}

void orderMessages(Schema& schema) {
    std::vector<Message*> all;
    for (Message& message : schema.messages) {
        if (!message.className.empty()) all.push_back(&message);
    }
    std::sort(all.begin(), all.end(),
              [](const Message* left, const Message* right) { return left->name < right->name; });
    Spread<kMessageUnits> units;
    for (Message* message : all)
        message->unit = units.take(message->params.size());
    schema.messagesByName.assign(all.begin(), all.end());
    schema.messagesByIdentity = schema.messagesByName;
    std::sort(
        schema.messagesByIdentity.begin(), schema.messagesByIdentity.end(),
        [](const Message* left, const Message* right) { return left->identity < right->identity; });
}

// The messages without name and parameters, which are written by hand.
constexpr const char* kNullRequest = "KORVA_Null_Request";
constexpr const char* kNullReply = "KORVA_Null_Reply";

std::vector<OperationRow> rowsOf(const PortType& portType) {
    std::vector<OperationRow> rows;
    for (const Operation& operation : portType.operations) {
        if (operation.request == nullptr || operation.reply == nullptr) continue;
        rows.push_back({operation.name, operation.request->className, operation.reply->className,
                        operation.action});
    }
    // Without a name of its own, a call goes where the first operation of the table goes.
    if (!rows.empty()) {
        rows.insert(rows.begin(), {"", kNullRequest, kNullReply, rows.front().action});
    }
    std::stable_sort(
        rows.begin(), rows.end(),
        [](const OperationRow& left, const OperationRow& right) { return left.name < right.name; });
    return rows;
}

void orderPortTypes(Schema& schema) {
    Spread<kPortTypeUnits> units;
    for (PortType& portType : schema.portTypes) {
        portType.unit = units.take(portType.operations.size());
        portType.rows = rowsOf(portType);
        std::sort(portType.params.begin(), portType.params.end(),
                  [](const OperationParam& left, const OperationParam& right) {
                      return left.key < right.key;
                  });
    }
}

}  // namespace

void decideOrder(Schema& schema) {
    orderTypes(schema);
    orderMessages(schema);
    orderPortTypes(schema);
    std::sort(schema.words.begin(), schema.words.end(),
              [](const TableWord& left, const TableWord& right) {
                  return unsignedIdentity(left.identity) < unsignedIdentity(right.identity);
              });
}

}  // namespace korva::schemac::passes
