// The owner of everything that is allocated for one scope.
#pragma once

#include <korva/KORVAExport.h>
#include <zel/ZELReferenceCount.h>
#include <zel/ZELSmartPointer.h>

#include <string>

class BRIMOutputStream;
class I18NString;
class KORVASchemaTypeI;
class KORVAXSBase64Binary;
class KORVA_AttachmentContainerI;
class KORVA_CharStreamable;
class KORVA_RefCount_ConstChar;
class KORVA_String;

/// A reference-counted, append-only list of typed pointers that frees them all in one sweep, in the
/// order of registration. The count starts at 0; the last removeReference ends the registry.
///
/// Each allocation is registered once: a pointer registered twice is freed twice. Null pointers may
/// be registered and are skipped. Used by one thread at a time.
///
/// Every registerPointer throws std::bad_alloc when the list cannot grow; the pointer then stays
/// the caller's.
class KORVA_EXPORT KORVAObjectRegistryI : public ZELReferenceCount {
public:
    /// How a plain value is to be freed.
    enum KORVADeleteMode : int {
        eKORVADelete = 0,        ///< as a single object
        eKORVADeleteScalar = 1,  ///< as a single object
        eKORVADeleteObject = 2,  ///< as a single object
        eKORVADeleteArray = 3,   ///< as an array
        eKORVAFree = 4           ///< with the C library's free
    };

    ~KORVAObjectRegistryI() override;

    /// @throws ZELAssertError `mode` is none of the five; nothing is registered
    virtual void registerPointer(bool* p, KORVADeleteMode mode) = 0;
    /// @throws ZELAssertError as above
    virtual void registerPointer(char* p, KORVADeleteMode mode) = 0;
    /// @throws ZELAssertError as above
    virtual void registerPointer(float* p, KORVADeleteMode mode) = 0;
    /// @throws ZELAssertError as above
    virtual void registerPointer(int* p, KORVADeleteMode mode) = 0;
    virtual void registerPointer(KORVA_AttachmentContainerI* p) = 0;
    virtual void registerPointer(KORVA_CharStreamable* p) = 0;
    virtual void registerPointer(KORVAXSBase64Binary* p) = 0;
    /// The reference that `*p` holds is dropped in the sweep.
    virtual void registerPointer(ZELSmartPointer<KORVA_RefCount_ConstChar>* p) = 0;
    virtual void registerPointer(KORVA_String* p) = 0;
    virtual void registerPointer(std::string* p) = 0;
    virtual void registerPointer(BRIMOutputStream* p) = 0;
    virtual void registerPointer(I18NString* p) = 0;
    virtual void registerPointer(KORVASchemaTypeI* p) = 0;

    /// Frees all entries, oldest first, and leaves the registry empty and usable. What is
    /// registered while the sweep runs is dropped without being freed. A destructor's exception
    /// passes through; the entries not yet reached then stay, those already freed are null.
    virtual void clean() = 0;

protected:
    KORVAObjectRegistryI() = default;
};
