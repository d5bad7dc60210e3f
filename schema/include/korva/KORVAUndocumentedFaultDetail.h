/// One error of a fault that no schema describes.
#pragma once

#include <korva/KORVASchemaTypeI.h>
#include <zel/ZELOwner.h>

class KORVAMessageArray;
class KORVAObjectRegistryI;
struct KORVAUndocumentedFaultDetail_PrivateData;

/// The literal counterpart of KORVAFaultDetail: all is text. Only KORVASOAPFaultSerializer writes
/// it; its children cannot be walked by name.
class KORVA_EXPORT KORVAUndocumentedFaultDetail : public KORVASchemaTypeI {
public:
    using Self = KORVAUndocumentedFaultDetail;
    using Identity = korva::TypeIdentity<eKORVAUndocumentedFaultDetail>;

    /// @throws ZELOutOfMemoryError no memory is left
    KORVAUndocumentedFaultDetail();
    /// A deep copy; what it consists of is registered in `registry`, the object itself is not.
    /// @throws ZELOutOfMemoryError no memory is left
    KORVAUndocumentedFaultDetail(const KORVAUndocumentedFaultDetail& other,
                                 KORVAObjectRegistryI& registry);
    ~KORVAUndocumentedFaultDetail() override;
    KORVAUndocumentedFaultDetail(const KORVAUndocumentedFaultDetail&) = delete;
    KORVAUndocumentedFaultDetail& operator=(const KORVAUndocumentedFaultDetail&) = delete;

    /// How severe the error is, usually a word of KORVASeverityEnum. Null while unset.
    const char* getSeverity() const;
    /// Stores the pointer as it stands; null unsets.
    void setSeverity(const char* value);

    /// The code of the error. Null while unset.
    const char* getErrorCodeString() const;
    /// Stores the pointer as it stands; null unsets.
    void setErrorCodeString(const char* value);

    /// The messages of the error. Empty at first.
    KORVAMessageArray& getMessage() const;

    ObjectType getObjectType() const override;
    const std::string& getGeneratedObjectName() const override;
    const char* generatedObjectName() const override;
    /// @throws ZELAssertError `name` is null
    /// @throws KORVAException 0xEA41BF21: there is no such child
    void* getChildObject(const char* name, bool forWrite) override;
    /// @throws ZELAssertError, KORVAException as getChildObject
    ObjectType getChildType(const char* name) const override;
    /// "message" appends a KORVAMessage; the others store a text.
    /// @throws ZELAssertError `name` or `obj` is null
    /// @throws KORVAException 0xEA41BF21: there is no such child; 0xEA47C21F: `type` or the object
    ///     does not fit
    std::size_t setChildObject(const char* name, void* obj, const ObjectType& type,
                               std::size_t* idx) override;
    /// @throws ZELAssertError always
    void getChildObjectNames(std::vector<const char*>& names, bool reserve) const override;
    bool isa(ObjectType type) const override;
    std::size_t getChildObjectCount() const override;

    /// Whether `other` is of this class, with equal texts and messages.
    virtual bool operator==(const KORVASchemaTypeI& other) const;
    virtual bool operator!=(const KORVASchemaTypeI& other) const;

private:
    ZELOwner<KORVAUndocumentedFaultDetail_PrivateData> m_pPrivateData;
};
