/// The owner of everything that is allocated for one scope of the second object model.
#pragma once

#include <tarn/TARNExport.h>
#include <zel/ZELOwner.h>
#include <zel/ZELReferenceCount.h>

#include <utility>

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

    /// Makes an `X` of these arguments and registers it. `X` is a class that registerPointer takes.
    /// The registry owns what is returned; it is never null. Nothing is left behind by a failure.
    /// @throws std::bad_alloc no memory is left; and what the constructor throws
    template <class X, class... Arguments>
    X* make(Arguments&&... arguments) {
        return own(ZELOwner<X>(new X(std::forward<Arguments>(arguments)...)));
    }

    /// Registers what `owner` holds, and takes it over.
    /// @param owner a ZELOwner, a std::unique_ptr, or whatever else has `get` and `release`
    /// @return what it held, the registry's from now on
    /// @throws std::bad_alloc no memory is left; `owner` has then freed what it held
    template <class Owner>
    auto* own(Owner owner) {
        registerPointer(owner.get());
        return owner.release();
    }

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
