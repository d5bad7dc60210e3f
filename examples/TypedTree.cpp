#include "examples/TypedTree.h"

#include <korva/KORVAChildIndex.h>
#include <korva/KORVAHalyardHeader.h>
#include <korva/KORVAMessageI.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_CharStreamable.h>

#include <cstring>
#include <ostream>
#include <string>
#include <vector>

namespace {

using Type = KORVASchemaTypeI::ObjectType;
using Factory = KORVASchemaTypesFactory;

/// A child that still has to be printed.
struct Node {
    std::string name;
    Type type;
    void* value;
    int level;
};

const char* typeText(Type type) {
    return Factory::getInstance().objectTypeToXSIType(type);
}

void printValue(std::ostream& out, Type type, const void* value) {
    if (Factory::isString(type)) {
        const auto* const text = static_cast<const char*>(value);
        if (KORVA_CharStreamable::isCharStreamable(text))
            out << "(streamed)";
        else
            out << '"' << text << '"';
        return;
    }
    switch (type) {
        case KORVASchemaTypeI::eInt:
        case KORVASchemaTypeI::eInteger: out << *static_cast<const int*>(value); break;
        case KORVASchemaTypeI::eFloat:
        case KORVASchemaTypeI::eDecimal: out << *static_cast<const float*>(value); break;
        case KORVASchemaTypeI::eBoolean:
            out << (*static_cast<const bool*>(value) ? "true" : "false");
            break;
        case KORVASchemaTypeI::eBase64Binary:
            out << '(' << static_cast<const KORVAXSBase64Binary*>(value)->pcount() << " bytes)";
            break;
        default: break;
    }
}

/// The children of `object` that are set, as nodes one level deeper.
std::vector<Node> childrenOf(KORVASchemaTypeI& object, int level) {
    const bool isArray = Factory::isArrayType(object.getObjectType());
    std::vector<const char*> names;
    object.getChildObjectNames(names, true);

    std::vector<Node> children;
    for (const char* name : names) {
        void* const value = object.getChildObject(name, false);
        if (value == nullptr) continue;
        std::string label =
            isArray ? '[' + std::to_string(KORVAChildIndex::toIndex(name)) + ']' : name;
        children.push_back({std::move(label), object.getChildType(name), value, level + 1});
    }
    return children;
}

void printNodes(std::ostream& out, Node root) {
    // A list instead of recursion: an envelope may nest as deep as it likes.
    std::vector<Node> pending;
    pending.push_back(std::move(root));
    while (!pending.empty()) {
        const Node node = std::move(pending.back());
        pending.pop_back();

        std::vector<Node> children;
        Type type = node.type;
        if (Factory::isGeneratedType(type)) {
            auto& object = *static_cast<KORVASchemaTypeI*>(node.value);
            type = object.getObjectType();
            children = childrenOf(object, node.level);
            // An unset array says nothing.
            if (children.empty() && Factory::isArrayType(type) && node.level > 1) continue;
        }
        out << std::string(static_cast<std::size_t>(node.level) * 2, ' ') << node.name << " ("
            << typeText(type) << ')';
        if (!Factory::isGeneratedType(type)) {
            out << ": ";
            printValue(out, type, node.value);
        } else if (children.size() == 1 && children.front().name.empty()) {
            // The object's own text.
            out << ": ";
            printValue(out, children.front().type, children.front().value);
            children.clear();
        }
        out << '\n';
        for (auto child = children.rbegin(); child != children.rend(); ++child)
            pending.push_back(std::move(*child));
    }
}

}  // namespace

void printTree(std::ostream& out, const char* name, const KORVASchemaTypeI& object) {
    // Reading by name without forWrite changes nothing.
    printNodes(out, {name, object.getObjectType(), const_cast<KORVASchemaTypeI*>(&object), 0});
}

void printTree(std::ostream& out, KORVAMessageI& message) {
    out << message.getMessageName() << '\n';
    if (KORVAHalyardHeader* const header = message.getHalyardHeader(nullptr))
        printNodes(out, {"halyardHeader", header->getObjectType(), header, 1});
    std::vector<const char*> names;
    message.getChildObjectNames(names);
    for (const char* name : names) {
        void* const value = message.getChildObject(name, false);
        if (value != nullptr)
            printNodes(out, {name, message.getChildType(name), value, 1});
        else
            out << "  " << name << " (not set)\n";
    }
}
