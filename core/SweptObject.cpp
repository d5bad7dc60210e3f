#include "core/SweptObject.h"

#include "core/NumberedError.h"

#include <i18n/KORVAMessageId.h>
#include <zel/ZELFrame.h>
#include <zel/ZELImmortal.h>

#include <mutex>
#include <new>

namespace korva {

namespace {

/// All that is buried, of all registries: a swept object knows nothing but its address. Never
/// destroyed, so that what is used when the program ends is told, too.
struct Graveyard {
    std::mutex mutex;
    Registrations graves;

    static Graveyard& instance() {
        return zel::immortal<Graveyard>([](void* at) { return ::new (at) Graveyard; });
    }
};

[[noreturn]] void raiseUse(const void* object) {
    std::string type;
    std::string registration;
    ZEL_TRY {
        Graveyard& graveyard = Graveyard::instance();
        const std::lock_guard guard(graveyard.mutex);
        const Registration& grave = graveyard.graves.at(object);
        type = grave.type;
        registration = grave.toString();
    }
    ZEL_CATCH("KORVA_CheckingRegistry");
    KORVA_RAISE(eKORVA_UsedAfterSweep, "KORVA_CheckingRegistry", type.c_str(),
                registration.c_str());
}

/// Has no data, so that it fits where any object was.
class SweptObject final : public KORVASchemaTypeI {
public:
    ObjectType getObjectType() const override { raiseUse(this); }
    const std::string& getGeneratedObjectName() const override { raiseUse(this); }
    const char* generatedObjectName() const override { raiseUse(this); }
    void* getChildObject(const char*, bool) override { raiseUse(this); }
    ObjectType getChildType(const char*) const override { raiseUse(this); }
    std::size_t setChildObject(const char*, void*, const ObjectType&, std::size_t*) override {
        raiseUse(this);
    }
    void getChildObjectNames(std::vector<const char*>&, bool) const override { raiseUse(this); }
    bool isa(ObjectType) const override { raiseUse(this); }
    std::size_t getChildObjectCount() const override { raiseUse(this); }

    // What classes add to the interface stands behind it in their tables: comparison, storage and
    // descriptor. Whoever still holds a pointer to such a class calls these.
    virtual void added0() const { raiseUse(this); }
    virtual void added1() const { raiseUse(this); }
    virtual void added2() const { raiseUse(this); }
    virtual void added3() const { raiseUse(this); }
    virtual void added4() const { raiseUse(this); }
    virtual void added5() const { raiseUse(this); }
    virtual void added6() const { raiseUse(this); }
    virtual void added7() const { raiseUse(this); }
};
static_assert(sizeof(SweptObject) == sizeof(void*));

}  // namespace

std::string Registration::toString() const {
    std::string text = "number " + std::to_string(number);
    if (place.getFileName() != nullptr) {
        text += ", behind ";
        text += place.getFileName();
        text += '(' + std::to_string(place.getLineNumber()) + ')';
    }
    return text;
}

void bury(KORVASchemaTypeI& object, Registrations& registrations) noexcept {
    {
        Graveyard& graveyard = Graveyard::instance();
        const std::lock_guard guard(graveyard.mutex);
        graveyard.graves.insert(registrations.extract(&object));
    }
    object.~KORVASchemaTypeI();
    ::new (static_cast<void*>(&object)) SweptObject;
}

void freeBuried(const void* registry) noexcept {
    Graveyard& graveyard = Graveyard::instance();
    const std::lock_guard guard(graveyard.mutex);
    for (auto grave = graveyard.graves.begin(); grave != graveyard.graves.end();) {
        if (grave->second.registry != registry) {
            ++grave;
            continue;
        }
        ::operator delete(const_cast<void*>(grave->first));
        grave = graveyard.graves.erase(grave);
    }
}

}  // namespace korva
