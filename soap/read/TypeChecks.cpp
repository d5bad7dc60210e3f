#include "soap/read/TypeChecks.h"

#include "core/NumberedError.h"

#include <i18n/KORVAMessageId.h>
#include <korva/KORVASchemaTypesFactory.h>

namespace korva {

namespace {

using Factory = KORVASchemaTypesFactory;

// The name under which failures are told is published.
constexpr const char* checkTypeLabel = "KORVASchemaTypeIContentHandler::checkType()";

const char* xsiType(ObjectType type) {
    return Factory::getInstance().objectTypeToXSIType(type);
}

}  // namespace

void checkType(const char* name, const KORVASchemaTypeI* object, ObjectType type,
               ObjectType expected) {
    if (type == expected) return;
    if (!Factory::isGeneratedType(type))
        KORVA_RAISE(eKORVA_WrongSimpleType, checkTypeLabel, name, xsiType(expected), xsiType(type));
    if (!object->isa(expected))
        KORVA_RAISE(eKORVA_WrongObjectType, checkTypeLabel, name, xsiType(expected), xsiType(type));
}

void checkItemType(const KORVASchemaTypeI* object, ObjectType type, ObjectType declared) {
    const bool fits = Factory::isGeneratedType(type)
                          ? Factory::isGeneratedType(declared) && object->isa(declared)
                          : type == declared;
    if (!fits)
        KORVA_RAISE(eKORVA_WrongItemType, "KORVASchemaTypeIContentHandler::startElement",
                    xsiType(type), xsiType(declared));
}

}  // namespace korva
