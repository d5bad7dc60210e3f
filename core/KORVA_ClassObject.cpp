#include "korva/KORVA_ClassObject.h"

#include "core/Fields.h"
#include "core/Names.h"
#include "core/ObjectComparison.h"

#include <korva/KORVASchemaTypesFactory.h>
#include <tarn/tarnsymbols1.h>
#include <zel/ZELAssert.h>
#include <zel/ZELByteBuffer.h>
#include <zel/ZELFrame.h>

using korva::FieldDescriptor;
using korva::FieldKind;
using Factory = KORVASchemaTypesFactory;

namespace {

[[noreturn]] void refuseArray(const korva::ClassDescriptor& level, const FieldDescriptor& field) {
    std::string text;
    ZEL_TRY {
        text = "ZEL_ASSERT_NAMED(false, \"The '";
        text += korva::word(field.crc);
        text += "' element cannot be set through the '";
        text += level.className;
        text += "::setChildObject()' method.\");";
    }
    ZEL_CATCH(nullptr);
    zel::assertionFailed(text.c_str(), ZEL_LOCATION);
}

void appendNames(const korva::ClassDescriptor& level, std::vector<const char*>& names) {
    if (level.base != nullptr) appendNames(*level.base, names);
    for (const FieldDescriptor& field : level)
        names.push_back(tarnsymbols1::getChar(field.crc));
}

}  // namespace

KORVA_ClassObject::~KORVA_ClassObject() {
    delete m_pPrivateData;
    m_pPrivateData = nullptr;
}

void* KORVA_ClassObject::getChildObject(const char* name, bool forWrite) {
    ZEL_ASSERT(name);
    ZEL_ASSERT(m_pPrivateData);
    const FieldDescriptor* const field = korva::findField(descriptor(), korva::nameCrc(name)).field;
    return field != nullptr ? korva::readField(*m_pPrivateData, *field, forWrite) : nullptr;
}

KORVASchemaTypeI::ObjectType KORVA_ClassObject::getChildType(const char* name) const {
    ZEL_ASSERT(name);
    const FieldDescriptor* const field = korva::findField(descriptor(), korva::nameCrc(name)).field;
    return field != nullptr ? field->type : e_Unknown;
}

std::size_t KORVA_ClassObject::setChildObject(const char* name, void* obj, const ObjectType& type,
                                              std::size_t*) {
    ZEL_ASSERT(name);
    if (*name == '\0') return 0;
    ZEL_ASSERT(obj != NULL);
    ZEL_ASSERT(m_pPrivateData);
    const auto [level, field] = korva::findField(descriptor(), korva::nameCrc(name));
    if (field == nullptr) return 0;

    const auto refuse = [level = level, field = field, &type] {
        Factory::typeError(korva::xmlName(level->identity), korva::word(field->crc), field->type,
                           type);
    };
    switch (field->kind) {
        case FieldKind::Object:
            if (!Factory::isGeneratedType(type) ||
                !static_cast<KORVASchemaTypeI*>(obj)->isa(field->type))
                refuse();
            korva::store(*m_pPrivateData, field->offset, obj);
            break;
        case FieldKind::Text: {
            if (!Factory::isString(type)) refuse();
            const void* const text =
                type == eCharStreamable ? obj : static_cast<ZELByteBuffer*>(obj)->str();
            korva::store(*m_pPrivateData, field->offset, text);
            break;
        }
        case FieldKind::Binary:
            if (!Factory::isBase64(type)) refuse();
            korva::store(*m_pPrivateData, field->offset, obj);
            break;
        case FieldKind::EmbeddedArray: refuseArray(*level, *field);
        default:
            if (!korva::storeValue(*m_pPrivateData, *field, obj, type)) refuse();
    }
    return 0;
}

void KORVA_ClassObject::getChildObjectNames(std::vector<const char*>& names, bool reserve) const {
    ZEL_TRY {
        if (reserve) names.reserve(getChildObjectCount());
        appendNames(descriptor(), names);
    }
    ZEL_CATCH(nullptr);
}

bool KORVA_ClassObject::isa(ObjectType type) const {
    for (const korva::ClassDescriptor* level = &descriptor(); level != nullptr; level = level->base)
        if (level->identity == type) return true;
    return false;
}

std::size_t KORVA_ClassObject::getChildObjectCount() const {
    const korva::ClassDescriptor& own = descriptor();
    return std::size_t{own.inheritedFieldCount} + own.fieldCount;
}

bool KORVA_ClassObject::operator==(const KORVASchemaTypeI& other) const {
    if (this == &other) return true;
    const korva::ClassDescriptor& own = descriptor();
    if (!other.isa(own.identity)) return false;
    ZEL_TRY {
        return korva::equalFields(own, *this, other);
    }
    ZEL_CATCH(nullptr);
}

bool KORVA_ClassObject::operator!=(const KORVASchemaTypeI& other) const {
    return !operator==(other);
}
