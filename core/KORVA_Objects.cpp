#include "korva/KORVA_Objects.h"

#include "core/Names.h"
#include "core/NumberedError.h"
#include "core/ObjectComparison.h"

#include <i18n/KORVAMessageId.h>
#include <korva/KORVAObjectRegistryI.h>
#include <zel/ZELFrame.h>

bool KORVA_Objects::areEqual(const KORVASchemaTypeI& left, const KORVASchemaTypeI& right) {
    ZEL_TRY {
        return left.getObjectType() == right.getObjectType() && korva::equalObjects(left, right);
    }
    ZEL_CATCH("KORVA_Objects::areEqual");
}

const char* KORVA_Objects::keep(std::string_view text, KORVAObjectRegistryI& registry) {
    ZEL_TRY {
        return registry.keep(text);
    }
    ZEL_CATCH("KORVA_Objects::keep");
}

void KORVA_Objects::refuseCast(KORVASchemaTypeI::ObjectType expected,
                               const KORVASchemaTypeI& object) {
    std::string name;
    ZEL_TRY {
        name = korva::className(expected);
    }
    ZEL_CATCH("KORVA_Objects::refuseCast");
    KORVA_RAISE(eKORVA_WrongClass, "KORVA_Objects::refuseCast", name.c_str(),
                object.generatedObjectName());
}
