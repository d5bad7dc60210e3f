// Made by korva-schemac from sample/messages.wsdl; do not edit.
#pragma once

#include <korva/KORVA_MessageObject.h>

#if KORVA_CORE_VERSION != 1
#error "This file was made for another version of the core: run korva-schemac again."
#endif

class KORVAAccountArray;
class KORVABaseClass;
class KORVAXSBase64Binary;
struct KORVAQuery_1_Request_PrivateData;

/// Asks for the accounts below an object.
class KORVA_EXPORT KORVAQuery_1_Request : public KORVA_MessageObject {
public:
    KORVAQuery_1_Request();
    ~KORVAQuery_1_Request() override;

    /// The element "below". Null while unset.
    KORVABaseClass* getBelow() const;
    /// The same; the type is abstract, so nothing can be made.
    /// @throws ZELAssertError a registry is given, and the child is unset
    KORVABaseClass* getBelow(KORVAObjectRegistryI* registry);
    /// Stores the pointer as it stands; null unsets.
    void setBelow(KORVABaseClass* value);

    /// The element "accounts". Null while unset.
    KORVAAccountArray* getAccounts() const;
    /// The same; made and registered in `registry` when unset.
    /// @throws ZELOutOfMemoryError no memory is left
    KORVAAccountArray* getAccounts(KORVAObjectRegistryI* registry);
    /// Stores the pointer as it stands; null unsets.
    void setAccounts(KORVAAccountArray* value);

    /// The element "most". Null while there is no value.
    int* getMost() const;
    void setMost(int value);
    /// From now on there is no value; what was stored stays in place.
    void resetMost();

    /// The element "all". Null while there is no value.
    bool* getAll() const;
    void setAll(bool value);
    /// From now on there is no value; what was stored stays in place.
    void resetAll();

    /// The element "filter". Null while unset.
    const char* getFilter() const;
    /// Stores the pointer as it stands; null unsets.
    void setFilter(const char* value);

    /// The element "cookie". Null while unset.
    KORVAXSBase64Binary* getCookie() const;
    /// Stores the pointer as it stands; null unsets.
    void setCookie(KORVAXSBase64Binary* value);

protected:
    const korva::MessageDescriptor& descriptor() const override;

private:
    KORVAQuery_1_Request_PrivateData* data() const;
};
