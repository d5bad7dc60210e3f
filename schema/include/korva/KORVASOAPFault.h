/// What a service answers with when it fails.
#pragma once

#include <korva/KORVASchemaTypeI.h>
#include <zel/ZELOwner.h>

#include <cstddef>
#include <string>

class KORVAFaultDetailArray;
class KORVAObjectRegistryI;
class KORVAUndocumentedFaultDetailArray;
struct KORVASOAPFault_PrivateData;

/// A SOAP 1.1 fault: code, text, actor, and details of one of two shapes. Documented details
/// (KORVAFaultDetail) are encoded with types, undocumented ones (KORVAUndocumentedFaultDetail) are
/// plain literal XML. A fault usually holds one shape; it may be converted into the other.
///
/// Texts and details are not owned: they belong to a registry or to the caller.
class KORVA_EXPORT KORVASOAPFault : public KORVASchemaTypeI {
public:
    using Self = KORVASOAPFault;
    using Identity = korva::TypeIdentity<eKORVASOAPFault>;

    /// @throws ZELOutOfMemoryError no memory is left
    KORVASOAPFault();
    /// A deep copy; what it consists of is registered in `registry`, the fault itself is not.
    /// @throws ZELOutOfMemoryError no memory is left
    KORVASOAPFault(const KORVASOAPFault& other, KORVAObjectRegistryI& registry);
    ~KORVASOAPFault() override;
    KORVASOAPFault(const KORVASOAPFault&) = delete;
    KORVASOAPFault& operator=(const KORVASOAPFault&) = delete;

    /// Null while unset.
    const char* getFaultCode() const;
    /// Stores the pointer as it stands; null unsets.
    void setFaultCode(const char* value);

    /// The text for people. Null while unset.
    const char* getFaultString() const;
    /// Stores the pointer as it stands; null unsets.
    void setFaultString(const char* value);

    /// Who on the message's way failed. Null while unset.
    const char* getFaultActor() const;
    /// Stores the pointer as it stands; null unsets.
    void setFaultActor(const char* value);

    /// The documented details. Null while unset.
    KORVAFaultDetailArray* getDetail() const;
    /// The undocumented details. Null while unset.
    KORVAUndocumentedFaultDetailArray* getUndocumentedDetail() const;
    /// Stores the pointer as it stands; null unsets. The undocumented details stay.
    void setDetail(KORVAFaultDetailArray* value);
    /// Stores the pointer as it stands; null unsets. The documented details stay.
    void setDetail(KORVAUndocumentedFaultDetailArray* value);
    /// Unsets the details, of either shape.
    void setDetail(std::nullptr_t);

    /// The details as they came, where they have neither shape: the element "detail" as an XML
    /// document of its own, which a tolerant reader keeps. Null while unset. It is not written.
    const char* getDetailText() const;
    /// Stores the pointer as it stands; null unsets.
    void setDetailText(const char* value);

    /// Turns the documented details into undocumented ones, which are registered in `registry` and
    /// added behind those that there are; an array for them is made in any case. Texts are shared
    /// with the old objects, not copied. Without documented details nothing else changes, otherwise
    /// they are unset.
    /// @throws ZELAssertError "ZEL_ASSERT(pNestingLevel);": a message has no nesting level, which
    ///     the undocumented shape requires; "ZEL_ASSERT(pFaultDetail);", "ZEL_ASSERT(pMessage);": a
    ///     row is null
    /// @throws ZELOutOfMemoryError no memory is left
    /// After a failure the documented details are still set, beside the rows made so far.
    void convertFaultDetail(KORVAObjectRegistryI& registry);

    /// The reverse. A message may do without a nesting level.
    /// @throws KORVAException 0xEA45DC29: a severity is no word of KORVASeverityEnum
    /// @throws ZELAssertError "ZEL_ASSERT(pUndocumentedFaultDetail);", "ZEL_ASSERT(pMessage);": a
    ///     row is null
    /// @throws ZELOutOfMemoryError no memory is left
    void convertUndocumentedFaultDetail(KORVAObjectRegistryI& registry);

    /// Sets `text` to the messages of the first detail, one behind the other without a separator:
    /// of the documented details if their array is set, else of the undocumented ones. The empty
    /// text when there is none.
    /// @throws ZELOutOfMemoryError no memory is left
    void getMessages(std::string& text) const;

    ObjectType getObjectType() const override;
    const std::string& getGeneratedObjectName() const override;
    const char* generatedObjectName() const override;
    /// "detail" gives the documented details, the undocumented ones while those are unset.
    /// @throws ZELAssertError `name` is null
    /// @throws KORVAException 0xEA41BF21: there is no such child
    void* getChildObject(const char* name, bool forWrite) override;
    /// @throws ZELAssertError, KORVAException as getChildObject
    ObjectType getChildType(const char* name) const override;
    /// The type of a text is eString and no other; "detail" takes an array of either shape.
    /// @throws ZELAssertError `name` or `obj` is null
    /// @throws KORVAException 0xEA41BF21: there is no child of this name, or it is "detail" with
    ///     another type; 0xEA47C21F: a text has another type, or the array is not of its type,
    ///     which unsets that detail
    std::size_t setChildObject(const char* name, void* obj, const ObjectType& type,
                               std::size_t* idx) override;
    void getChildObjectNames(std::vector<const char*>& names, bool reserve) const override;
    bool isa(ObjectType type) const override;
    std::size_t getChildObjectCount() const override;

    /// Whether `other` is a fault with equal texts and equal details.
    virtual bool operator==(const KORVASchemaTypeI& other) const;
    virtual bool operator!=(const KORVASchemaTypeI& other) const;

private:
    ZELOwner<KORVASOAPFault_PrivateData> m_pPrivateData;
};
