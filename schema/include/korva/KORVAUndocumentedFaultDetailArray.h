/// The errors of a fault that no schema describes.
#pragma once

#include <korva/KORVA_TypedArray.h>

class KORVAUndocumentedFaultDetail;

/// A list of undocumented fault details. Only KORVASOAPFaultSerializer writes it;
/// KORVASchemaTypesFactory::isArrayType does not count it among the arrays of the schema.
class KORVA_EXPORT KORVAUndocumentedFaultDetailArray
    : public KORVA_ObjectArray<KORVAUndocumentedFaultDetail> {
public:
    using Self = KORVAUndocumentedFaultDetailArray;
    using Identity = korva::TypeIdentity<eKORVAUndocumentedFaultDetailArray>;

    KORVAUndocumentedFaultDetailArray();
    /// A deep copy; what it consists of is registered in `registry`, the array itself is not.
    /// @throws ZELOutOfMemoryError no memory is left
    KORVAUndocumentedFaultDetailArray(const KORVAUndocumentedFaultDetailArray& other,
                                      KORVAObjectRegistryI& registry);
    ~KORVAUndocumentedFaultDetailArray() override;

    /// Replaces the elements by deep copies of those of `other`, registered in `registry`.
    /// @throws ZELOutOfMemoryError no memory is left; the array is then empty
    void copy(const KORVAUndocumentedFaultDetailArray& other, KORVAObjectRegistryI& registry);

    ObjectType getObjectType() const override;
    const std::string& getGeneratedObjectName() const override;
    const char* generatedObjectName() const override;
    /// @throws ZELAssertError always
    void getChildObjectNames(std::vector<const char*>& names, bool reserve) const override;

    bool operator==(const KORVASchemaTypeI& other) const override;

private:
    ObjectType elementType() const override;
};
