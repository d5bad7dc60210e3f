#include "korva/KORVA_Null_Reply.h"

#include "core/NumberedError.h"

#include <i18n/KORVAMessageId.h>
#include <zel/ZELAssert.h>

KORVA_Null_Reply::KORVA_Null_Reply() = default;

KORVA_Null_Reply::~KORVA_Null_Reply() = default;

KORVAMessageI::MessageType KORVA_Null_Reply::getMessageType() const {
    return eKORVA_Null_Reply;
}

void KORVA_Null_Reply::getChildObjectNames(std::vector<const char*>&) const {}

void* KORVA_Null_Reply::getChildObject(const char* name, bool) {
    ZEL_ASSERT(name);
    return nullptr;
}

KORVAMessageI::ObjectType KORVA_Null_Reply::getChildType(const char* name) const {
    ZEL_ASSERT(name);
    return KORVASchemaTypeI::e_Unknown;
}

void KORVA_Null_Reply::setChildObject(const char* name, void*, const ObjectType&) {
    ZEL_ASSERT(name);
    if (*name == '\0') return;
    KORVA_RAISE(eKORVA_NoSuchChild, "KORVA_Null_Reply::setChildObject", name, getMessageName());
}

const char* KORVA_Null_Reply::getMessageName() const {
    return "[Null]_Reply";
}
