#include "generator/passes/Passes.h"

#include <algorithm>

namespace korva::schemac::passes {

using namespace model;

void decideOrder(Schema& schema) {
    for (const auto& [name, type] : schema.typesByName) {
        schema.byName.push_back(type);
        switch (type->kind) {
            case TypeKind::Class: schema.classes.push_back(type); break;
            case TypeKind::Property: schema.properties.push_back(type); break;
            case TypeKind::Array: schema.arrays.push_back(type); break;
            case TypeKind::Enum: schema.enums.push_back(type); break;
            case TypeKind::RestrictedString: schema.restrictedStrings.push_back(type); break;
        }
    }
    std::stable_sort(
        schema.classes.begin(), schema.classes.end(),
        [](const Type* left, const Type* right) { return left->depth < right->depth; });
    for (const Message& message : schema.messages) {
        if (!message.className.empty()) schema.sortedMessages.push_back(&message);
    }
    std::sort(schema.sortedMessages.begin(), schema.sortedMessages.end(),
              [](const Message* left, const Message* right) { return left->name < right->name; });
}

}  // namespace korva::schemac::passes
