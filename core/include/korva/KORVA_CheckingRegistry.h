/// A registry that finds mistakes of ownership, for tests and debug builds.
///
///     const ZELSmartPointer<KORVA_CheckingRegistry> registry = KORVA_CheckingRegistry::create();
///     request->setObjectRegistry(registry.get());
///     registry->mark(ZEL_LOCATION);            // a step of the program, for the messages
///     fill(*request);
///     registry->check(*request->getObjectPath(nullptr));  // it, and all that it holds
#pragma once

#include <korva/KORVAObjectRegistryI.h>
#include <zel/ZELFileLocation.h>
#include <zel/ZELOwner.h>

#include <cstddef>
#include <version>

#if defined(__cpp_lib_source_location)
#include <source_location>
#endif

/// A KORVAObjectRegistryI that tells three mistakes, each by the type of what it concerns and the
/// place of its registration:
///
/// - what is registered twice, by registerPointer (0xEA4F0033), which leaves it registered once;
/// - an object that is used behind the sweep, by whatever asks it through KORVASchemaTypeI, such as
/// a
///   serializer, a comparison or a copy (0xEA4F0034). Until the registry ends, the memory of the
///   objects that it freed stays, and refuses to be used. An accessor that is not virtual, such as
///   `schedule->getActive()`, is not told: it finds what a destructor left;
/// - what was never registered, by `check` (0xEA4F0035).
///
/// A registration is told by its number, and by the place that was marked before it: the published
/// interface tells no place. Objects come from `new`, as all registries demand it. The sweep frees
/// objects first, and all else behind them. Several times slower than KORVAObjectRegistry, and
/// keeps all memory of objects; used by one thread at a time, like any registry.
class KORVA_EXPORT KORVA_CheckingRegistry final : public KORVAObjectRegistryI {
public:
    /// A new registry with a reference count of 0.
    /// @throws ZELOutOfMemoryError no memory is left
    static KORVA_CheckingRegistry* create();

    /// Sweeps as clean() does, and gives back the memory of the objects that were swept.
    ~KORVA_CheckingRegistry() override;
    KORVA_CheckingRegistry(const KORVA_CheckingRegistry&) = delete;
    KORVA_CheckingRegistry& operator=(const KORVA_CheckingRegistry&) = delete;

    /// Names a place of the program: what is registered from now on is told as behind it. The name
    /// of the file must live as long as the registry, as that of ZEL_LOCATION does.
    void mark(ZELFileLocation place) noexcept;
#if defined(__cpp_lib_source_location)
    void mark(const std::source_location& place = std::source_location::current()) noexcept {
        mark(ZELFileLocation(place.file_name(), place.line()));
    }
#endif

    /// Looks through `root` and all that it holds for objects and binaries that are not registered
    /// here. Texts are passed over: many are literals. So is what an undocumented detail of a fault
    /// holds, which cannot be walked.
    /// @throws KORVAException 0xEA4F0035: an object or binary is not registered, with its path from
    ///     `root`; 0xEA4F0034: an object was swept
    /// @throws ZELOutOfMemoryError no memory is left
    void check(const KORVASchemaTypeI& root) const;

    /// All throw, beside what KORVAObjectRegistryI says:
    /// @throws KORVAException 0xEA4F0033: `p` is registered already; it stays registered once
    void registerPointer(bool* p, KORVADeleteMode mode) override;
    void registerPointer(char* p, KORVADeleteMode mode) override;
    void registerPointer(float* p, KORVADeleteMode mode) override;
    void registerPointer(int* p, KORVADeleteMode mode) override;
    void registerPointer(KORVA_AttachmentContainerI* p) override;
    void registerPointer(KORVA_CharStreamable* p) override;
    void registerPointer(KORVAXSBase64Binary* p) override;
    void registerPointer(ZELSmartPointer<KORVA_RefCount_ConstChar>* p) override;
    void registerPointer(KORVA_String* p) override;
    void registerPointer(std::string* p) override;
    void registerPointer(BRIMOutputStream* p) override;
    void registerPointer(I18NString* p) override;
    void registerPointer(KORVASchemaTypeI* p) override;
    void clean() override;

    /// The number of registrations since the last sweep.
    std::size_t size() const noexcept;

private:
    class Book;

    KORVA_CheckingRegistry();

    ZELOwner<Book> m_book;
};
