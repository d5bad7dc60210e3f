// Made by korva-schemac from sample/sample.xsd; do not edit.
#pragma once

#include <korva/KORVA_ClassObject.h>

#if KORVA_CORE_VERSION != 1
#error "This file was made for another version of the core: run korva-schemac again."
#endif

class KORVAObjectRegistryI;
class KORVAStringProp;
struct KORVABaseClass_PrivateData;

/// What all content objects share.
class KORVA_EXPORT KORVABaseClass : public KORVA_ClassObject {
public:
    using Self = KORVABaseClass;
    using Identity = korva::TypeIdentity<eKORVABaseClass>;

    KORVABaseClass();
    /// A deep copy; what it consists of is registered in `registry`, the object itself is not.
    KORVABaseClass(const KORVABaseClass& other, KORVAObjectRegistryI& registry);
    ~KORVABaseClass() override;

    /// The name that people see. It is a long story how it came to be called that, and the story is
    /// told here only to make the comment longer than one line.
    ///
    /// A second paragraph: 100 % "quoted" text, a dollar sign $, and a backslash at the end \. Null
    /// while unset.
    KORVAStringProp* getName() const;
    /// The same; made and registered in `registry` when unset.
    /// @throws ZELOutOfMemoryError no memory is left
    KORVAStringProp* getName(KORVAObjectRegistryI* registry);
    /// Stores the pointer as it stands; null unsets.
    void setName(KORVAStringProp* value);

    /// The element "owner". Null while unset.
    KORVABaseClass* getOwner() const;
    /// The same; the type is abstract, so nothing can be made.
    /// @throws ZELAssertError a registry is given, and the child is unset
    KORVABaseClass* getOwner(KORVAObjectRegistryI* registry);
    /// Stores the pointer as it stands; null unsets.
    void setOwner(KORVABaseClass* value);

    const char* generatedObjectName() const override;
    const std::string& getGeneratedObjectName() const override;

protected:
    /// Takes the record of a derived class.
    explicit KORVABaseClass(korva::Record* record) noexcept;
    const korva::ClassDescriptor& descriptor() const override;

private:
    KORVABaseClass_PrivateData* data() const;
};
