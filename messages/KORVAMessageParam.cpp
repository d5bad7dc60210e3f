#include "korva/KORVAMessageParam.h"

#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

KORVAMessageParam::KORVAMessageParam(const char* name, ObjectType type, void* value)
    : m_paramType(type), m_paramValue(value) {
    ZEL_TRY {
        if (name != nullptr) m_name = name;
    }
    ZEL_CATCH("KORVAMessageParam::KORVAMessageParam()");
}

KORVAMessageParam::KORVAMessageParam(const char* name, ObjectType type, KORVASchemaTypeI* value)
    : KORVAMessageParam(name, type, static_cast<void*>(value)) {}

KORVAMessageParam::KORVAMessageParam(const char* name, ObjectType type, std::nullptr_t)
    : KORVAMessageParam(name, type, static_cast<void*>(nullptr)) {}

KORVAMessageParam::~KORVAMessageParam() = default;

const char* KORVAMessageParam::getName() const {
    return m_name.empty() ? nullptr : m_name.c_str();
}

void KORVAMessageParam::setParamValue(void* value) {
    ZEL_ASSERT(!m_paramValue);
    m_paramValue = value;
}
