#include "korva/KORVAUnknownSchemaType.h"

#include <zel/ZELFrame.h>

KORVAUnknownSchemaType::KORVAUnknownSchemaType() = default;
KORVAUnknownSchemaType::KORVAUnknownSchemaType(const std::string& name) {
    setName(name);
}
KORVAUnknownSchemaType::~KORVAUnknownSchemaType() = default;

const char* KORVAUnknownSchemaType::getName() const {
    return m_name.c_str();
}
void KORVAUnknownSchemaType::setName(const std::string& name) {
    std::string copy;
    ZEL_TRY {
        copy = name;
    }
    ZEL_CATCH(nullptr);
    m_name.swap(copy);
}

KORVASchemaTypeI::ObjectType KORVAUnknownSchemaType::getObjectType() const {
    return e_Unknown;
}
const std::string& KORVAUnknownSchemaType::getGeneratedObjectName() const {
    return m_name;
}
const char* KORVAUnknownSchemaType::generatedObjectName() const {
    return m_name.c_str();
}

void* KORVAUnknownSchemaType::getChildObject(const char*, bool) {
    return nullptr;
}

KORVASchemaTypeI::ObjectType KORVAUnknownSchemaType::getChildType(const char*) const {
    return e_Unknown;
}

std::size_t KORVAUnknownSchemaType::setChildObject(const char*, void*, const ObjectType&,
                                                   std::size_t*) {
    return 0;
}

void KORVAUnknownSchemaType::getChildObjectNames(std::vector<const char*>&, bool) const {}
bool KORVAUnknownSchemaType::isa(ObjectType type) const {
    return type == e_Unknown;
}
std::size_t KORVAUnknownSchemaType::getChildObjectCount() const {
    return 0;
}

bool KORVAUnknownSchemaType::operator==(const KORVASchemaTypeI& other) const {
    return this == &other;
}
bool KORVAUnknownSchemaType::operator!=(const KORVASchemaTypeI& other) const {
    return !operator==(other);
}
