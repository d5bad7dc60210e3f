#include "tarn/TARNSchemaTypesFactory.h"

#include "tarn/TextObject.h"
#include "tarn/TypeErrors.h"
#include "tarn/TypeTable.h"
#include "types/PlainTypes.h"

#include <tarn/TARN_ArrayObject.h>
#include <tarn/TARN_ClassObject.h>
#include <zel/ZELFrame.h>

#include <cstring>
#include <string_view>

// What is published of the plain types agrees with their one list.
#define KORVA_PIN(number, name, wireName, kind)                                        \
    static_assert(TARNSchemaTypeI::e##name == number);                                 \
    static_assert(!TARNSchemaTypesFactory::isGeneratedType(TARNSchemaTypeI::e##name)); \
    static_assert(TARNSchemaTypesFactory::isString(TARNSchemaTypeI::e##name) ==        \
                  (types::FieldKind::kind == types::FieldKind::Text));
KORVA_PLAIN_TYPES(KORVA_PIN)
#undef KORVA_PIN

namespace {

constexpr std::size_t busPrefixLength = sizeof "bus:" - 1;

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
    const types::PlainRow* const plain = types::findPlain(std::string_view(text));
    return plain != nullptr ? static_cast<ObjectType>(plain->type) : TARNSchemaTypeI::e_Unknown;
}

const char* TARNSchemaTypesFactory::objectTypeToXSIType(ObjectType type) const {
    if (type == TARNSchemaTypeI::e_Unknown) return types::unknownText;
    if (const types::PlainRow* const plain = types::findPlain(type)) return plain->text.data();
    const tarn::TypeRow* const row = tarn::findType(type);
    return row != nullptr ? tarn::xsiName(*row) : nullptr;
}
