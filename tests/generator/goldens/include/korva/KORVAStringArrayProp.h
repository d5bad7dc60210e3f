// Made by korva-schemac from sample/values.xsd; do not edit.
#pragma once

#include <korva/KORVABaseProp.h>

#if KORVA_CORE_VERSION != 1
#error "This file was made for another version of the core: run korva-schemac again."
#endif

class KORVAObjectRegistryI;
class KORVAStringArray;
struct KORVAStringArrayProp_PrivateData;

/// The property "stringArrayProp" of the schema.
class KORVA_EXPORT KORVAStringArrayProp : public KORVABaseProp {
public:
    using Self = KORVAStringArrayProp;
    using Identity = korva::TypeIdentity<eKORVAStringArrayProp>;

    KORVAStringArrayProp();
    /// A deep copy; what it consists of is registered in `registry`, the object itself is not.
    KORVAStringArrayProp(const KORVAStringArrayProp& other, KORVAObjectRegistryI& registry);
    ~KORVAStringArrayProp() override;

    /// The element "value". Empty at first.
    KORVAStringArray& getValue() const;

    ObjectType getObjectType() const override;
    const char* generatedObjectName() const override;
    const std::string& getGeneratedObjectName() const override;

protected:
    /// Takes the record of a derived class.
    explicit KORVAStringArrayProp(korva::Record* record) noexcept;
    const korva::ClassDescriptor& descriptor() const override;

private:
    KORVAStringArrayProp_PrivateData* data() const;
};
