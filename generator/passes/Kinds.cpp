#include "generator/passes/Passes.h"

namespace korva::schemac::passes {

using namespace model;

namespace {

constexpr std::string_view kPropertyRoot = "baseProp";
constexpr std::string_view kPropertyValue = "value";

FieldKind kindOf(const TypeReference& reference) {
    return types::kindOf(static_cast<std::int32_t>(reference.plain));
}

void decideTypeKind(Type& type, const Type* propertyRoot, Diagnostics& diagnostics) {
    switch (type.form) {
        case TypeForm::Array: type.kind = TypeKind::Array; return;
        case TypeForm::Enumeration: type.kind = TypeKind::Enum; return;
        case TypeForm::RestrictedString: type.kind = TypeKind::RestrictedString; return;
        case TypeForm::Record: break;
    }
    const bool isProperty =
        propertyRoot != nullptr && &type != propertyRoot && type.isA(*propertyRoot);
    type.kind = isProperty ? TypeKind::Property : TypeKind::Class;
    if (!isProperty) return;
    if (type.baseType() != propertyRoot) {
        diagnostics.error(type.base->at, describe(type),
                          "its base \"" + type.base->text + "\" is a property",
                          inQuotes(kPropertyRoot) + " itself as the base of a property");
    }
    if (type.isAbstract) {
        diagnostics.error(type.at, describe(type), "the property is abstract",
                          "a property without abstract=\"true\"");
    }
    if (type.fields.size() != 1 || type.fields.front().name != kPropertyValue) {
        std::string elements;
        for (const Field& field : type.fields) {
            elements.append(elements.empty() ? "the elements " : ", ").append(inQuotes(field.name));
        }
        if (elements.empty()) elements = "no element";
        diagnostics.error(type.at, describe(type), "the property has " + elements,
                          "one element named " + inQuotes(kPropertyValue));
    }
}

void decideFieldKind(Field& field) {
    field.kind = kindOf(field.reference);
    const Type* type = field.reference.type;
    if (type == nullptr) return;
    if (type->kind == TypeKind::Array) field.kind = FieldKind::EmbeddedArray;
    field.createsOnGet = field.kind == FieldKind::Object && !type->isAbstract;
}

void decideParamKind(Field& param, const Message& message, Diagnostics& diagnostics) {
    param.kind = kindOf(param.reference);
    const Type* type = param.reference.type;
    if (type != nullptr) {
        param.createsOnGet = !type->isAbstract;
        return;
    }
    switch (param.reference.plain) {
        case PlainType::None:
        case PlainType::String:
        case PlainType::Int:
        case PlainType::Boolean:
        case PlainType::Base64Binary: return;
        default: break;
    }
    diagnostics.error(param.at, item("part", param.name) + " of " + item("message", message.name),
                      "a parameter cannot be a " + inQuotes(param.reference.text),
                      "xs:string, xs:int, xs:boolean, xs:base64Binary or a type of the schema");
}

void decideElementKind(Type& array, Diagnostics& diagnostics) {
    array.elementKind = kindOf(array.element);
    const bool supported =
        array.elementKind == FieldKind::Object || array.elementKind == FieldKind::Text ||
        array.elementKind == FieldKind::Int || array.elementKind == FieldKind::Boolean;
    const Type* type = array.element.type;
    if (!supported || (type != nullptr && type->kind == TypeKind::Array)) {
        diagnostics.error(array.element.at, describe(array),
                          "an array cannot hold elements of " + inQuotes(array.element.text),
                          "a class, an enumeration, a restricted string, a text, an integer or "
                          "xs:boolean");
    }
    if (type == nullptr) return;
    if (array.name == type->name + "Array") array.arrayKey = type->name + "[]";
}

}  // namespace

void decideKinds(Schema& schema, Diagnostics& diagnostics) {
    const Type* propertyRoot = schema.find(kPropertyRoot);
    if (propertyRoot != nullptr && (propertyRoot->form != TypeForm::Record ||
                                    !propertyRoot->isAbstract || propertyRoot->base)) {
        diagnostics.error(propertyRoot->at, describe(*propertyRoot),
                          "it cannot be the root of the properties",
                          "an abstract complexType without a base");
    }
    for (Type& type : schema.types) {
        decideTypeKind(type, propertyRoot, diagnostics);
        if (type.isAbstract && type.baseType() != nullptr && !type.baseType()->isAbstract) {
            diagnostics.error(
                type.at, describe(type),
                "it is abstract, and its base " + inQuotes(type.base->text) + " is not",
                "an abstract base, or a class without abstract=\"true\"");
        }
    }
    for (Type& type : schema.types) {
        for (Field& field : type.fields)
            decideFieldKind(field);
        if (type.form == TypeForm::Array) decideElementKind(type, diagnostics);
    }
    for (Message& message : schema.messages) {
        for (Field& param : message.params)
            decideParamKind(param, message, diagnostics);
    }
}

}  // namespace korva::schemac::passes
