// The owner of everything that is allocated for one scope of the second object model.
#pragma once

#include <tarn/TARNExport.h>
#include <zel/ZELReferenceCount.h>

class BRIMOutputStream;
class TARNBase64Binary;
class TARNSchemaTypeI;
class TARN_CharStreamable;
class TARN_String;

/// A reference-counted list of pointers that frees them all in one sweep, in the order of
/// registration. The count starts at 0; the last removeReference ends the registry.
///
/// Each allocation is registered once; null pointers are skipped. Used by one thread at a time.
///
/// Every registerPointer throws std::bad_alloc when the list cannot grow; the pointer then stays
/// the caller's.
class TARN_EXPORT TARNObjectRegistryI : public ZELReferenceCount {
public:
    ~TARNObjectRegistryI() override;

    virtual void registerPointer(TARNSchemaTypeI* p) = 0;
    virtual void registerPointer(TARN_String* p) = 0;
    virtual void registerPointer(TARNBase64Binary* p) = 0;
    virtual void registerPointer(TARN_CharStreamable* p) = 0;
    virtual void registerPointer(BRIMOutputStream* p) = 0;

    /// Frees all entries, oldest first, and leaves the registry empty and usable.
    virtual void clean() = 0;

protected:
    TARNObjectRegistryI() = default;
};
