#include "tarn/TARNSchemaTypesFactory.h"

#include "tarn/TextObject.h"
#include "tarn/TypeErrors.h"
#include "tarn/TypeTable.h"

#include <tarn/TARN_ArrayObject.h>
#include <tarn/TARN_ClassObject.h>
#include <zel/ZELFrame.h>

#include <cstring>

namespace {

constexpr std::size_t prefixLength = sizeof "xs:" - 1;
constexpr std::size_t busPrefixLength = sizeof "bus:" - 1;

/// In the order of ObjectType.
constexpr const char* plainNames[] = {"_unknown",        "xs:string", "xs:int",      "xs:integer",
                                      "xs:decimal",      "xs:time",   "xs:dateTime", "xs:boolean",
                                      "xs:base64Binary", "xs:float",  "xs:QName"};

}  // namespace

constinit TARNSchemaTypesFactory TARNSchemaTypesFactory::g_instance;

TARNSchemaTypesFactory& TARNSchemaTypesFactory::getInstance() {
    return g_instance;
}

bool TARNSchemaTypesFactory::isArrayType(ObjectType type) {
    const tarn::TypeRow* const row = tarn::findType(type);
    return row != nullptr && row->kind == tarn::TypeKind::Array;
}

TARNSchemaTypeI* TARNSchemaTypesFactory::create(ObjectType type) const {
    const tarn::TypeRow* const row = tarn::findType(type);
    if (row == nullptr || row->isAbstract) tarn::cannotCreate(type);
    ZEL_TRY {
        switch (row->kind) {
            case tarn::TypeKind::Class:
            case tarn::TypeKind::Property: return TARN_ClassObject::create(*row);
            case tarn::TypeKind::Array: return TARN_ArrayObject::create(*row);
            case tarn::TypeKind::Enum:
            case tarn::TypeKind::RestrictedString: return new tarn::TextObject(*row);
        }
        return nullptr;
    }
    ZEL_CATCH("TARNSchemaTypesFactory::create");
}

TARNSchemaTypeI::ObjectType TARNSchemaTypesFactory::stringToObjectType(const char* text) const {
    if (text == nullptr || *text == '\0') return TARNSchemaTypeI::e_Unknown;
    const ObjectType type = identityOf(text);
    const tarn::TypeRow* const row = tarn::findType(type);
    if (row != nullptr && std::strcmp(tarn::xsiName(*row) + busPrefixLength, text) == 0)
        return type;
    for (int plain = TARNSchemaTypeI::eString; plain <= TARNSchemaTypeI::eQName; ++plain)
        if (std::strcmp(plainNames[plain] + prefixLength, text) == 0)
            return static_cast<ObjectType>(plain);
    return TARNSchemaTypeI::e_Unknown;
}

const char* TARNSchemaTypesFactory::objectTypeToXSIType(ObjectType type) const {
    if (type >= TARNSchemaTypeI::e_Unknown && type <= TARNSchemaTypeI::eQName)
        return plainNames[type];
    const tarn::TypeRow* const row = tarn::findType(type);
    return row != nullptr ? tarn::xsiName(*row) : nullptr;
}
