#include "korva/KORVA_Null_Request.h"

#include "core/NumberedError.h"

#include <i18n/KORVAMessageId.h>
#include <zel/ZELAssert.h>

KORVA_Null_Request::KORVA_Null_Request() = default;

KORVA_Null_Request::~KORVA_Null_Request() = default;

KORVAMessageI::MessageType KORVA_Null_Request::getMessageType() const {
    return eKORVA_Null_Request;
}

void KORVA_Null_Request::getChildObjectNames(std::vector<const char*>&) const {}

void* KORVA_Null_Request::getChildObject(const char* name, bool) {
    ZEL_ASSERT(name);
    return nullptr;
}

KORVAMessageI::ObjectType KORVA_Null_Request::getChildType(const char* name) const {
    ZEL_ASSERT(name);
    return KORVASchemaTypeI::e_Unknown;
}

void KORVA_Null_Request::setChildObject(const char* name, void*, const ObjectType&) {
    ZEL_ASSERT(name);
    if (*name == '\0') return;
    KORVA_RAISE(eKORVA_NoSuchChild, "KORVA_Null_Request::setChildObject", name, getMessageName());
}

const char* KORVA_Null_Request::getMessageName() const {
    return "[Null]_Request";
}
