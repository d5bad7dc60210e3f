#include "korva/KORVAUndocumentedFaultDetailArray.h"

#include "core/ObjectName.h"

#include <korva/KORVAUndocumentedFaultDetail.h>
#include <zel/ZELAssert.h>

#include <algorithm>

KORVAUndocumentedFaultDetailArray::KORVAUndocumentedFaultDetailArray() = default;

KORVAUndocumentedFaultDetailArray::KORVAUndocumentedFaultDetailArray(
    const KORVAUndocumentedFaultDetailArray& other, KORVAObjectRegistryI& registry) {
    copyElements(other, registry);
}

KORVAUndocumentedFaultDetailArray::~KORVAUndocumentedFaultDetailArray() = default;

void KORVAUndocumentedFaultDetailArray::copy(const KORVAUndocumentedFaultDetailArray& other,
                                             KORVAObjectRegistryI& registry) {
    copyElements(other, registry);
}

KORVASchemaTypeI::ObjectType KORVAUndocumentedFaultDetailArray::elementType() const {
    return eKORVAUndocumentedFaultDetail;
}

KORVASchemaTypeI::ObjectType KORVAUndocumentedFaultDetailArray::getObjectType() const {
    return eKORVAUndocumentedFaultDetailArray;
}

const char* KORVAUndocumentedFaultDetailArray::generatedObjectName() const {
    return "KORVAUndocumentedFaultDetailArray";
}

const std::string& KORVAUndocumentedFaultDetailArray::getGeneratedObjectName() const {
    static const std::string& name = korva::makeObjectName(generatedObjectName());
    return name;
}

void KORVAUndocumentedFaultDetailArray::getChildObjectNames(std::vector<const char*>&, bool) const {
    ZEL_ASSERT_NAMED(false, "Unsupported.  KORVAUndocumentedFaultDetailArray objects are serialized in doc/literal style.");
}

bool KORVAUndocumentedFaultDetailArray::operator==(const KORVASchemaTypeI& other) const {
    if (this == &other) return true;
    if (!other.isa(getObjectType())) return false;
    const auto& elements = static_cast<const KORVAUndocumentedFaultDetailArray&>(other);
    return std::equal(
        begin(), end(), elements.begin(), elements.end(),
        [](const KORVAUndocumentedFaultDetail* left, const KORVAUndocumentedFaultDetail* right) {
            return left == right ||
                   (left != nullptr && right != nullptr && left->operator==(*right));
        });
}
