#include "tests/toolkits/Describe.h"

#include <korva/KORVAChildIndex.h>
#include <korva/KORVAHalyardHeader.h>
#include <korva/KORVASchemaTypeArrayI.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVAXSBase64Binary.h>

#include <cstdio>
#include <stdexcept>
#include <vector>

namespace korva::test {

namespace {

using Object = KORVASchemaTypeI;
using Factory = KORVASchemaTypesFactory;

std::string quoted(const char* text) {
    std::string out = "\"";
    for (; *text != '\0'; ++text) {
        switch (*text) {
            case '"': out += "\\\""; break;
            case '\\': out += "\\\\"; break;
            case '\n': out += "\\n"; break;
            case '\r': out += "\\r"; break;
            case '\t': out += "\\t"; break;
            default: out += *text;
        }
    }
    return out + "\"";
}

std::string digits(const KORVAXSBase64Binary& binary) {
    std::string out = "hex ";
    for (std::size_t i = 0; i < static_cast<std::size_t>(binary.pcount()); ++i) {
        char byte[3];
        std::snprintf(byte, sizeof byte, "%02x", static_cast<unsigned char>(binary.str()[i]));
        out += byte;
    }
    return out;
}

std::string plain(const void* value, Object::ObjectType type) {
    if (Factory::isString(type)) return quoted(static_cast<const char*>(value));
    switch (type) {
        case Object::eInt:
        case Object::eInteger: return std::to_string(*static_cast<const int*>(value));
        case Object::eBoolean: return *static_cast<const bool*>(value) ? "true" : "false";
        case Object::eBase64Binary: return digits(*static_cast<const KORVAXSBase64Binary*>(value));
        default: throw std::invalid_argument("no case has values of this type");
    }
}

void append(std::string& out, const std::string& name, const void* value, Object::ObjectType type,
            const std::string& indent) {
    out += indent + name + ": ";
    if (value == nullptr) {
        out += "null\n";
        return;
    }
    if (!Factory::isGeneratedType(type)) {
        out += plain(value, type) + "\n";
        return;
    }
    // Reading without writing in mind changes nothing.
    auto& object = *const_cast<Object*>(static_cast<const Object*>(value));
    std::vector<const char*> names;
    object.getChildObjectNames(names, true);
    if (const auto* array = dynamic_cast<const KORVASchemaTypeArrayI*>(&object)) {
        out += "array of " + std::to_string(array->size()) + "\n";
        for (const char* const item : names)
            append(out, "[" + std::to_string(KORVAChildIndex::toIndex(item)) + "]",
                   object.getChildObject(item, false), object.getChildType(item), indent + "  ");
        return;
    }
    if (names.size() == 1 && *names.front() == '\0') {
        out += quoted(static_cast<const char*>(object.getChildObject("", false))) + "\n";
        return;
    }
    const std::string typeName = Factory::getInstance().objectTypeToXSIType(object.getObjectType());
    out += typeName.substr(typeName.find(':') + 1) + "\n";
    for (const char* const child : names) {
        const void* const childValue = object.getChildObject(child, false);
        if (childValue == nullptr) continue;
        const Object::ObjectType childType = object.getChildType(child);
        const bool isArray = Factory::isArrayType(childType);
        if (isArray && static_cast<const Object*>(childValue)->getChildObjectCount() == 0) continue;
        append(out, child, childValue, childType, indent + "  ");
    }
}

}  // namespace

std::string describe(KORVAMessageI& message) {
    std::string out;
    if (const KORVAHalyardHeader* const header = message.getHalyardHeader(nullptr))
        append(out, "header", static_cast<const Object*>(header), header->getObjectType(), "");
    std::vector<const char*> names;
    message.getChildObjectNames(names);
    for (const char* const name : names)
        append(out, name, message.getChildObject(name, false), message.getChildType(name), "");
    return out;
}

}  // namespace korva::test
