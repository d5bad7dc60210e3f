#include "korva/KORVA_CheckingRegistry.h"

#include "core/ChildWalk.h"
#include "core/NumberedError.h"
#include "core/SweptObject.h"

#include <i18n/KORVAMessageId.h>
#include <korva/KORVAObjectRegistry.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_ClassObject.h>
#include <korva/KORVA_Path.h>
#include <zel/ZELFrame.h>

#include <set>
#include <utility>
#include <vector>

using korva::Registration;
using korva::Registrations;
using Factory = KORVASchemaTypesFactory;

/// What is registered, by address; the objects in their order, all else with a registry that frees
/// it.
class KORVA_CheckingRegistry::Book {
public:
    explicit Book(const void* registry)
        : m_registry(registry), m_others(KORVAObjectRegistry::create()) {}

    void mark(ZELFileLocation place) { m_place = place; }

    std::size_t size() const { return m_registrations.size(); }

    bool contains(const void* p) const { return m_registrations.count(p) != 0; }

    void add(KORVASchemaTypeI* object) {
        if (object == nullptr) return;
        m_objects.push_back(object);
        try {
            enter(object, object->generatedObjectName());
        } catch (...) {
            m_objects.pop_back();
            throw;
        }
    }

    template <class Pointer, class... Mode>
    void add(Pointer* p, const char* type, Mode... mode) {
        if (p != nullptr) enter(p, type);
        try {
            m_others->registerPointer(p, mode...);
        } catch (...) {
            m_registrations.erase(p);
            throw;
        }
    }

    void clean() {
        // What a destructor registers is dropped.
        const std::vector<KORVASchemaTypeI*> objects = std::exchange(m_objects, {});
        for (KORVASchemaTypeI* const object : objects)
            korva::bury(*object, m_registrations);
        m_others->clean();
        m_objects.clear();
        m_registrations.clear();
    }

private:
    void enter(const void* p, const char* type) {
        const Registration registration{type, m_count + 1, m_place, m_registry};
        const auto [entry, isNew] = m_registrations.emplace(p, registration);
        if (!isNew) {
            const std::string first = entry->second.toString();
            const std::string now = registration.toString();
            KORVA_RAISE(eKORVA_RegisteredTwice, "KORVA_CheckingRegistry",
                        entry->second.type.c_str(), first.c_str(), now.c_str());
        }
        ++m_count;
    }

    const void* const m_registry;
    ZELFileLocation m_place{nullptr, 0};
    std::size_t m_count = 0;
    Registrations m_registrations;
    std::vector<KORVASchemaTypeI*> m_objects;
    ZELSmartPointer<KORVAObjectRegistry> m_others;
};

KORVA_CheckingRegistry* KORVA_CheckingRegistry::create() {
    ZEL_TRY {
        return new KORVA_CheckingRegistry;
    }
    ZEL_CATCH("KORVA_CheckingRegistry::create()");
}

KORVA_CheckingRegistry::KORVA_CheckingRegistry() : m_book(new Book(this)) {}

KORVA_CheckingRegistry::~KORVA_CheckingRegistry() {
    try {
        clean();
    } catch (...) {  // NOLINT(bugprone-empty-catch): a destructor lets nothing out
    }
    korva::freeBuried(this);
}

void KORVA_CheckingRegistry::mark(ZELFileLocation place) noexcept {
    m_book->mark(place);
}

std::size_t KORVA_CheckingRegistry::size() const noexcept {
    return m_book->size();
}

void KORVA_CheckingRegistry::check(const KORVASchemaTypeI& root) const {
    struct Visit {
        const KORVASchemaTypeI* object;
        KORVA_Path path;
        bool isPart;  ///< of its holder, as the arrays of a class are
    };
    const auto refuse = [](const char* type, const KORVA_Path& path) {
        KORVA_RAISE(eKORVA_NotRegistered, "KORVA_CheckingRegistry::check", type,
                    path.toString().c_str());
    };
    ZEL_TRY {
        std::set<const KORVASchemaTypeI*> seen;
        std::vector<Visit> pending{{&root, KORVA_Path(), false}};
        while (!pending.empty()) {
            const Visit visit = std::move(pending.back());
            pending.pop_back();
            if (!seen.insert(visit.object).second) continue;
            const KORVASchemaTypeI& object = *visit.object;
            // One that was swept tells so when it is asked for its name.
            if (!visit.isPart && !m_book->contains(&object))
                refuse(object.generatedObjectName(), visit.path);
            if (korva::refusesToBeWalked(object)) continue;
            const bool isClass = dynamic_cast<const KORVA_ClassObject*>(&object) != nullptr;
            for (const KORVA_Child& child : KORVA_Children(object)) {
                if (child.isNull()) continue;
                if (child.isObject())
                    pending.push_back({child.asObject(), visit.path / child,
                                       isClass && Factory::isArrayType(child.type())});
                else if (Factory::isBase64(child.type()) && !m_book->contains(child.asBinary()))
                    refuse("KORVAXSBase64Binary", visit.path / child);
            }
        }
    }
    ZEL_CATCH("KORVA_CheckingRegistry::check");
}

void KORVA_CheckingRegistry::registerPointer(bool* p, KORVADeleteMode mode) {
    m_book->add(p, "bool", mode);
}
void KORVA_CheckingRegistry::registerPointer(char* p, KORVADeleteMode mode) {
    m_book->add(p, "char", mode);
}
void KORVA_CheckingRegistry::registerPointer(float* p, KORVADeleteMode mode) {
    m_book->add(p, "float", mode);
}
void KORVA_CheckingRegistry::registerPointer(int* p, KORVADeleteMode mode) {
    m_book->add(p, "int", mode);
}
void KORVA_CheckingRegistry::registerPointer(KORVA_AttachmentContainerI* p) {
    m_book->add(p, "KORVA_AttachmentContainerI");
}
void KORVA_CheckingRegistry::registerPointer(KORVA_CharStreamable* p) {
    m_book->add(p, "KORVA_CharStreamable");
}
void KORVA_CheckingRegistry::registerPointer(KORVAXSBase64Binary* p) {
    m_book->add(p, "KORVAXSBase64Binary");
}
void KORVA_CheckingRegistry::registerPointer(ZELSmartPointer<KORVA_RefCount_ConstChar>* p) {
    m_book->add(p, "ZELSmartPointer<KORVA_RefCount_ConstChar>");
}
void KORVA_CheckingRegistry::registerPointer(KORVA_String* p) {
    m_book->add(p, "KORVA_String");
}
void KORVA_CheckingRegistry::registerPointer(std::string* p) {
    m_book->add(p, "std::string");
}
void KORVA_CheckingRegistry::registerPointer(BRIMOutputStream* p) {
    m_book->add(p, "BRIMOutputStream");
}
void KORVA_CheckingRegistry::registerPointer(I18NString* p) {
    m_book->add(p, "I18NString");
}
void KORVA_CheckingRegistry::registerPointer(KORVASchemaTypeI* p) {
    m_book->add(p);
}
void KORVA_CheckingRegistry::clean() {
    m_book->clean();
}
