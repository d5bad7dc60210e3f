#include "korva/KORVA_HrefReference.h"

#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

KORVA_HrefReference::KORVA_HrefReference(const char* contentId, KORVASchemaTypeI* object,
                                         const char* name, ObjectType type, std::size_t index)
    : m_obj(object), m_type(type), m_index(index) {
    ZEL_ASSERT(m_obj);
    ZEL_TRY {
        if (contentId != nullptr) m_contentId = contentId;
        if (name != nullptr) m_name = name;
        return;
    }
    ZEL_CATCH("KORVA_HrefReference::KORVA_HrefReference");
}

KORVA_HrefReference::~KORVA_HrefReference() = default;
