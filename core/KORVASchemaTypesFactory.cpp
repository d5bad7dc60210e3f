#include "korva/KORVASchemaTypesFactory.h"

#include "core/Descriptor.h"
#include "core/Names.h"
#include "core/NumberedError.h"
#include "types/PlainTypes.h"

#include <i18n/KORVAMessageId.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVASchemaTypeArrayI.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>
#include <zel/ZELImmortal.h>
#include <zel/ZELOwner.h>

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <new>
#include <string_view>

using korva::findType;
using korva::TypeDescriptor;
using korva::typeTables;

// What is published of the plain types agrees with their one list.
#define KORVA_PIN(number, name, wireName, kind)                                          \
    static_assert(KORVASchemaTypeI::e##name == number);                                  \
    static_assert(!KORVASchemaTypesFactory::isGeneratedType(KORVASchemaTypeI::e##name)); \
    static_assert(KORVASchemaTypesFactory::isString(KORVASchemaTypeI::e##name) ==        \
                  (types::FieldKind::kind == types::FieldKind::Text));
KORVA_PLAIN_TYPES(KORVA_PIN)
#undef KORVA_PIN

namespace {

/// The XSI type text, or null.
const char* schemaTypeToXsiType(KORVASchemaTypeI::ObjectType type) {
    if (type == KORVASchemaTypeI::e_Unknown) return types::unknownText;
    if (const types::PlainRow* const plain = types::findPlain(type)) return plain->text.data();
    const TypeDescriptor* const row = findType(type);
    return row != nullptr ? row->xsiName : nullptr;
}

KORVASchemaTypeI::ObjectType search(const KORVASchemaTypesFactory::KORVATypeNameToType* rows,
                                    std::size_t count, std::string_view name) {
    const auto* const end = rows + count;
    const auto* const row = std::lower_bound(
        rows, end, name, [](const auto& entry, std::string_view key) { return entry.name < key; });
    return row != end && row->name == name ? row->type : KORVASchemaTypeI::e_Unknown;
}

[[noreturn]] void unknownType(KORVASchemaTypeI::ObjectType type, const char* function) {
    const char* const text = schemaTypeToXsiType(type);
    KORVA_RAISE(eKORVA_UnknownObjectType, function, text != nullptr ? text : "_unknown");
}

}  // namespace

KORVASchemaTypesFactory::~KORVASchemaTypesFactory() = default;

KORVASchemaTypesFactory& KORVASchemaTypesFactory::getInstance() {
    return zel::immortal<KORVASchemaTypesFactory>(
        [](void* at) { return ::new (at) KORVASchemaTypesFactory; });
}

bool KORVASchemaTypesFactory::isArrayType(ObjectType type) {
    return objectTypeToArrayType(type) != nullptr;
}

void KORVASchemaTypesFactory::typeError(const char* className, const char* childName,
                                        ObjectType expectedType, ObjectType actualType) {
    const char* const expected = getInstance().objectTypeToXSIType(expectedType);
    const char* const actual = getInstance().objectTypeToXSIType(actualType);
    KORVA_RAISE(eKORVA_WrongChildType, "KORVASchemaTypesFactory::typeError()", className, childName,
                expected, actual);
}

KORVASchemaTypeI::ObjectType KORVASchemaTypesFactory::stringToObjectType(const char* name) const {
    if (name == nullptr || *name == '\0') return KORVASchemaTypeI::e_Unknown;
    const ObjectType type = busTypeToObjectType(name);
    return type != KORVASchemaTypeI::e_Unknown ? type : xsiTypeToObjectType(name);
}

KORVASchemaTypeI::ObjectType KORVASchemaTypesFactory::busTypeToObjectType(
    const char* busType) const {
    ZEL_ASSERT(busType);
    return search(typeTables.names, typeTables.nameCount, busType);
}

KORVASchemaTypeI::ObjectType KORVASchemaTypesFactory::busArrayTypeToObjectType(
    const char* arrayType) const {
    ZEL_ASSERT(arrayType);
    ZEL_TRY {
        std::string key(arrayType);
        key += "[]";
        return search(typeTables.arrayNames, typeTables.arrayNameCount, key);
    }
    ZEL_CATCH(nullptr);
}

KORVASchemaTypeI::ObjectType KORVASchemaTypesFactory::xsiTypeToObjectType(
    const char* xsiType) const {
    ZEL_ASSERT(xsiType);
    const types::PlainRow* const plain = types::findPlain(std::string_view(xsiType));
    return plain != nullptr ? static_cast<ObjectType>(plain->type) : KORVASchemaTypeI::e_Unknown;
}

const char* KORVASchemaTypesFactory::objectTypeToXSIType(ObjectType type) const {
    const char* const text = schemaTypeToXsiType(type);
    if (text == nullptr)
        ZEL_ASSERT_NAMED(false,
                         "KORVASchemaTypesFactory::objectTypeToXSIType(): unknown object type.");
    return text;
}

void KORVASchemaTypesFactory::objectTypeToArrayType(ObjectType type,
                                                    const KORVASchemaTypeArrayI* array,
                                                    std::string& out) const {
    const char* const arrayType = objectTypeToArrayType(type);
    ZEL_ASSERT_NAMED(arrayType,
                     "KORVASchemaTypesFactory::objectTypeToArrayType(): unknown object type.");
    ZEL_TRY {
        out = arrayType;
        out += '[';
        if (array != nullptr) {
            char digits[16];
            const auto end = std::to_chars(digits, digits + sizeof digits,
                                           static_cast<std::uint32_t>(array->size()));
            out.append(digits, end.ptr);
        }
        out += ']';
    }
    ZEL_CATCH(nullptr);
}

const char* KORVASchemaTypesFactory::objectTypeToArrayType(ObjectType type) {
    const TypeDescriptor* const row = findType(type);
    if (row == nullptr || row->elementType == KORVASchemaTypeI::e_Unknown) return nullptr;
    return schemaTypeToXsiType(row->elementType);
}

KORVASchemaTypeI* KORVASchemaTypesFactory::create(ObjectType type) const {
    const TypeDescriptor* const row = findType(type);
    if (row == nullptr || row->create == nullptr)
        unknownType(type, "KORVASchemaTypesFactory::create()");
    ZEL_TRY {
        return row->create();
    }
    ZEL_CATCH("KORVASchemaTypesFactory::create()");
}

KORVASchemaTypeI& KORVASchemaTypesFactory::createCopy(const KORVASchemaTypeI& object,
                                                      KORVAObjectRegistryI& registry) const {
    const ObjectType type = object.getObjectType();
    const TypeDescriptor* const row = findType(type);
    if (row == nullptr || row->copy == nullptr)
        unknownType(type, "KORVASchemaTypesFactory::createCopy()");
    ZEL_TRY {
        return *registry.own(ZELOwner<KORVASchemaTypeI>(row->copy(object, registry)));
    }
    ZEL_CATCH("KORVASchemaTypesFactory::createCopy()");
}
