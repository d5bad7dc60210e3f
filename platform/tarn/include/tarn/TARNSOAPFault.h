/// What a service answers with when it fails, in the second object model.
#pragma once

#include <tarn/TARN_ClassObject.h>

class TARNUndocumentedFaultDetailArray;

/// A SOAP 1.1 fault. Its children are three texts and the documented details, an array of type
/// "faultDetailArray". The undocumented details are a child too, but not among the names that
/// getChildObjectNames gives. Made by TARNSchemaTypesFactory as an object of type eTARNSOAPFault.
///
/// Either array is null until it is set, or until getChildObject makes it for writing; one that is
/// made so belongs to the fault.
class TARN_EXPORT TARNSOAPFault final : public TARN_ClassObject {
public:
    /// The names of the children.
    static constexpr const char* faultCodeName = "faultcode";
    static constexpr const char* faultStringName = "faultstring";
    static constexpr const char* faultActorName = "faultactor";
    static constexpr const char* detailName = "detail";
    static constexpr const char* undocumentedDetailName = "undocumentedDetail";

    ~TARNSOAPFault() override;

    /// Null while unset.
    const char* getFaultCode() const;
    /// Null while unset.
    const char* getFaultString() const;
    /// Null while unset.
    const char* getFaultActor() const;
    /// The documented details. Null while unset.
    TARNSchemaTypeI* getDetail() const;
    /// The undocumented details. Null while unset.
    TARNUndocumentedFaultDetailArray* getUndocumentedDetail() const;

private:
    friend class TARN_ClassObject;

    using TARN_ClassObject::TARN_ClassObject;
};
