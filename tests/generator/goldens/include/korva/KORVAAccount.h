// Made by korva-schemac from sample/sample.xsd; do not edit.
#pragma once

#include <korva/KORVAFolder.h>

#if KORVA_CORE_VERSION != 1
#error "This file was made for another version of the core: run korva-schemac again."
#endif

class KORVAAccessEnum;
class KORVAAccountArray;
class KORVAGuid;
class KORVAObjectRegistryI;
class KORVAStringArray;
class KORVAXSBase64Binary;
struct KORVAAccount_PrivateData;

/// The class "account" of the schema.
class KORVA_EXPORT KORVAAccount : public KORVAFolder {
public:
    using Self = KORVAAccount;
    using Identity = korva::TypeIdentity<eKORVAAccount>;

    KORVAAccount();
    /// A deep copy; what it consists of is registered in `registry`, the object itself is not.
    KORVAAccount(const KORVAAccount& other, KORVAObjectRegistryI& registry);
    ~KORVAAccount() override;

    /// The element "access". Null while unset.
    KORVAAccessEnum* getAccess() const;
    /// The same; made and registered in `registry` when unset.
    /// @throws ZELOutOfMemoryError no memory is left
    KORVAAccessEnum* getAccess(KORVAObjectRegistryI* registry);
    /// Stores the pointer as it stands; null unsets.
    void setAccess(KORVAAccessEnum* value);

    /// The element "active". Null while there is no value.
    bool* getActive() const;
    void setActive(bool value);
    /// From now on there is no value; what was stored stays in place.
    void resetActive();

    /// The element "born". Null while unset.
    const char* getBorn() const;
    /// Stores the pointer as it stands; null unsets.
    void setBorn(const char* value);

    /// The element "class". Null while unset.
    const char* getClass() const;
    /// Stores the pointer as it stands; null unsets.
    void setClass(const char* value);

    /// The element "default". Null while there is no value.
    int* getDefault() const;
    void setDefault(int value);
    /// From now on there is no value; what was stored stays in place.
    void resetDefault();

    /// The element "friends". Empty at first.
    KORVAAccountArray& getFriends() const;

    /// The account's identifier. Null while unset.
    KORVAGuid* getId() const;
    /// The same; made and registered in `registry` when unset.
    /// @throws ZELOutOfMemoryError no memory is left
    KORVAGuid* getId(KORVAObjectRegistryI* registry);
    /// Stores the pointer as it stands; null unsets.
    void setId(KORVAGuid* value);

    /// The element "picture". Null while unset.
    KORVAXSBase64Binary* getPicture() const;
    /// Stores the pointer as it stands; null unsets.
    void setPicture(KORVAXSBase64Binary* value);

    /// The element "quota". Null while there is no value.
    int* getQuota() const;
    void setQuota(int value);
    /// From now on there is no value; what was stored stays in place.
    void resetQuota();

    /// The element "rate". Null while there is no value.
    float* getRate() const;
    void setRate(float value);
    /// From now on there is no value; what was stored stays in place.
    void resetRate();

    /// The element "share". Null while there is no value.
    float* getShare() const;
    void setShare(float value);
    /// From now on there is no value; what was stored stays in place.
    void resetShare();

    /// The element "tags". Empty at first.
    KORVAStringArray& getTags() const;

    /// The element "text". Null while unset.
    const char* getText() const;
    /// Stores the pointer as it stands; null unsets.
    void setText(const char* value);

    /// The element "wake". Null while unset.
    const char* getWake() const;
    /// Stores the pointer as it stands; null unsets.
    void setWake(const char* value);

    ObjectType getObjectType() const override;
    const char* generatedObjectName() const override;
    const std::string& getGeneratedObjectName() const override;

protected:
    /// Takes the record of a derived class.
    explicit KORVAAccount(korva::Record* record) noexcept;
    const korva::ClassDescriptor& descriptor() const override;

private:
    KORVAAccount_PrivateData* data() const;
};
