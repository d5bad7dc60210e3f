#include "tarn/TARNObjectRegistry.h"

#include <brim/BRIMOutputStream.h>
#include <tarn/TARNBase64Binary.h>
#include <tarn/TARNSchemaTypeI.h>
#include <tarn/TARN_CharStreamable.h>
#include <tarn/TARN_String.h>
#include <zel/ZELFrame.h>

#include <utility>

TARNObjectRegistry* TARNObjectRegistry::create() {
    ZEL_TRY {
        return new TARNObjectRegistry;
    }
    ZEL_CATCH("TARNObjectRegistry::create()");
}

TARNObjectRegistry::~TARNObjectRegistry() {
    for (const Entry& entry : m_entries)
        free(entry);
}

void TARNObjectRegistry::registerPointer(TARNSchemaTypeI* p) {
    m_entries.push_back({p, Kind::SchemaType});
}
void TARNObjectRegistry::registerPointer(TARN_String* p) {
    m_entries.push_back({p, Kind::String});
}
void TARNObjectRegistry::registerPointer(TARNBase64Binary* p) {
    m_entries.push_back({p, Kind::Base64Binary});
}
void TARNObjectRegistry::registerPointer(TARN_CharStreamable* p) {
    m_entries.push_back({p, Kind::CharStreamable});
}
void TARNObjectRegistry::registerPointer(BRIMOutputStream* p) {
    m_entries.push_back({p, Kind::Stream});
}

void TARNObjectRegistry::free(const Entry& entry) {
    void* const p = entry.pointer;
    switch (entry.kind) {
        case Kind::SchemaType: delete static_cast<TARNSchemaTypeI*>(p); return;
        case Kind::String: delete static_cast<TARN_String*>(p); return;
        case Kind::Base64Binary: delete static_cast<TARNBase64Binary*>(p); return;
        case Kind::CharStreamable: delete static_cast<TARN_CharStreamable*>(p); return;
        case Kind::Stream: delete static_cast<BRIMOutputStream*>(p); return;
    }
}

void TARNObjectRegistry::clean() {
    for (Entry& entry : m_entries) {
        void* const p = std::exchange(entry.pointer, nullptr);
        free({p, entry.kind});
    }
    m_entries.clear();
}
