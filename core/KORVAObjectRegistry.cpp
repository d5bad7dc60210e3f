#include "korva/KORVAObjectRegistry.h"

#include <brim/BRIMOutputStream.h>
#include <korva/KORVASchemaTypeI.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_AttachmentContainerI.h>
#include <korva/KORVA_CharStreamable.h>
#include <korva/KORVA_RefCount_ConstChar.h>
#include <korva/KORVA_String.h>
#include <zel/I18NString.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

#include <cstdlib>
#include <new>
#include <stdexcept>

namespace {
constexpr std::size_t initialCapacity = 100;
}

KORVAObjectRegistry* KORVAObjectRegistry::create() {
    ZEL_TRY {
        return new KORVAObjectRegistry;
    }
    ZEL_CATCH("KORVAObjectRegistry::create()");
}

KORVAObjectRegistry::KORVAObjectRegistry() {
    m_entries.reserve(initialCapacity);
}

KORVAObjectRegistry::~KORVAObjectRegistry() {
    try {
        clean();
    } catch (...) {  // NOLINT(bugprone-empty-catch): a destructor lets nothing out
    }
}

KORVAObjRegEnum KORVAObjectRegistry::mapMode(KORVADeleteMode mode) {
    switch (mode) {
        case eKORVADelete: return eKORVARegDelete;
        case eKORVADeleteScalar: return eKORVARegDeleteScalar;
        case eKORVADeleteObject: return eKORVARegDeleteObject;
        case eKORVADeleteArray: return eKORVARegDeleteArray;
        case eKORVAFree: return eKORVARegFree;
    }
    ZEL_ASSERT(false);
    return eKORVARegDelete;
}

// As published: a place for a check of new entries; duplicates are the callers' matter.
void KORVAObjectRegistry::validateNewEntry(void*) const {}

void KORVAObjectRegistry::append(void* p, KORVAObjRegEnum kind) {
    validateNewEntry(p);
    if (m_entries.size() == m_entries.capacity()) grow();
    m_entries.push_back({p, kind});
}

void KORVAObjectRegistry::grow() {
    const std::size_t capacity = m_entries.capacity();
    if (capacity > m_entries.max_size() - capacity / 2)
        throw std::length_error("vector<T> too long");
    m_entries.reserve(capacity + capacity / 2);
}

void KORVAObjectRegistry::registerPointer(bool* p, KORVADeleteMode mode) {
    append(p, mapMode(mode));
}
void KORVAObjectRegistry::registerPointer(char* p, KORVADeleteMode mode) {
    append(p, mapMode(mode));
}
void KORVAObjectRegistry::registerPointer(float* p, KORVADeleteMode mode) {
    append(p, mapMode(mode));
}
void KORVAObjectRegistry::registerPointer(int* p, KORVADeleteMode mode) {
    append(p, mapMode(mode));
}
void KORVAObjectRegistry::registerPointer(KORVA_AttachmentContainerI* p) {
    append(p, eKORVARegAttachmentContainer);
}
void KORVAObjectRegistry::registerPointer(KORVA_CharStreamable* p) {
    append(p, eKORVARegCharStreamable);
}
void KORVAObjectRegistry::registerPointer(KORVAXSBase64Binary* p) {
    append(p, eKORVARegBase64Binary);
}
void KORVAObjectRegistry::registerPointer(ZELSmartPointer<KORVA_RefCount_ConstChar>* p) {
    append(p, eKORVARegRefCountConstChar);
}
void KORVAObjectRegistry::registerPointer(KORVA_String* p) {
    append(p, eKORVARegString);
}
void KORVAObjectRegistry::registerPointer(std::string* p) {
    append(p, eKORVARegStdString);
}
void KORVAObjectRegistry::registerPointer(BRIMOutputStream* p) {
    append(p, eKORVARegOutputStream);
}
void KORVAObjectRegistry::registerPointer(I18NString* p) {
    append(p, eKORVARegI18NString);
}
void KORVAObjectRegistry::registerPointer(KORVASchemaTypeI* p) {
    append(p, eKORVARegSchemaType);
}

void KORVAObjectRegistry::free(const RegistrationEntry& entry) {
    void* const p = entry.pointer;
    switch (entry.kind) {
        case eKORVARegSchemaType: delete static_cast<KORVASchemaTypeI*>(p); return;
        case eKORVARegStdString: delete static_cast<std::string*>(p); return;
        case eKORVARegString: delete static_cast<KORVA_String*>(p); return;
        case eKORVARegI18NString: delete static_cast<I18NString*>(p); return;
        case eKORVARegOutputStream: delete static_cast<BRIMOutputStream*>(p); return;
        case eKORVARegBase64Binary: delete static_cast<KORVAXSBase64Binary*>(p); return;
        case eKORVARegCharStreamable: delete static_cast<KORVA_CharStreamable*>(p); return;
        case eKORVARegAttachmentContainer:
            delete static_cast<KORVA_AttachmentContainerI*>(p);
            return;
        case eKORVARegDelete:
        case eKORVARegDeleteScalar:
        case eKORVARegDeleteObject: ::operator delete(p); return;
        case eKORVARegDeleteArray: ::operator delete[](p); return;
        case eKORVARegFree: std::free(p); return;
        case eKORVARegRefCountConstChar: {
            // The reference is dropped by hand, so the pointer object goes without its destructor.
            auto* const holder = static_cast<ZELSmartPointer<KORVA_RefCount_ConstChar>*>(p);
            if (KORVA_RefCount_ConstChar* const target = holder->get()) target->removeReference();
            ::operator delete(p);
            return;
        }
    }
    ZEL_ASSERT(false);
}

void KORVAObjectRegistry::clean() {
    const std::size_t count = m_entries.size();
    for (std::size_t i = 0; i < count; ++i) {
        const RegistrationEntry entry = m_entries.at(i);
        if (entry.pointer == nullptr) continue;
        // Gone from the list before it goes: a destructor that throws leaves nothing to free twice.
        m_entries[i].pointer = nullptr;
        free(entry);
    }
    m_entries.clear();
}
