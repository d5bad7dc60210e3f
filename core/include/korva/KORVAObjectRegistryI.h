/// The owner of everything that is allocated for one scope.
#pragma once

#include <korva/KORVAExport.h>
#include <zel/ZELOwner.h>
#include <zel/ZELReferenceCount.h>
#include <zel/ZELSmartPointer.h>

#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

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
/// `make` and `keep` are the usual way in, and leave nothing behind when they fail:
///
///     auto* const report = registry->make<KORVAReport>();
///     report->getDefaultName(registry)->setValue(registry->keep(name));
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

    /// Makes an `X` of these arguments and registers it. `X` is a class that registerPointer takes,
    /// or bool, char, float or int. The registry owns what is returned; it is never null.
    /// @throws std::bad_alloc no memory is left; and what the constructor throws
    template <class X, class... Arguments>
    X* make(Arguments&&... arguments) {
        ZELOwner<X> object(new X(std::forward<Arguments>(arguments)...));
        if constexpr (std::is_arithmetic_v<X>)
            return own(std::move(object), eKORVADelete);
        else
            return own(std::move(object));
    }

    /// Copies a text in UTF-8 and registers the copy, for the setters that store pointers. What a
    /// getter returns is taken, too: null stays null, and a char streamable is copied as one.
    /// @throws std::bad_alloc no memory is left
    const char* keep(const char* text);
    /// The same for plain text of a known length. A NUL in it ends it for whoever reads it.
    /// @throws std::bad_alloc no memory is left
    const char* keep(std::string_view text);

    /// Registers what `owner` holds, and takes it over: nothing else changes hands when that fails.
    /// @param owner a ZELOwner, a std::unique_ptr, or whatever else has `get` and `release`
    /// @param mode how to free it: for bool, char, float and int, and for nothing else
    /// @return what it held, the registry's from now on
    /// @throws std::bad_alloc no memory is left; `owner` has then freed what it held
    template <class Owner, class... Mode>
    auto* own(Owner owner, Mode... mode) {
        registerPointer(owner.get(), mode...);
        return owner.release();
    }

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
