/// The registry of the second object model.
#pragma once

#include <tarn/TARNObjectRegistryI.h>

#include <cstddef>
#include <vector>

/// A TARNObjectRegistryI over one vector: registering is an append of two words.
class TARN_EXPORT TARNObjectRegistry final : public TARNObjectRegistryI {
public:
    /// A new registry with a reference count of 0.
    /// @throws ZELOutOfMemoryError no memory is left
    static TARNObjectRegistry* create();

    ~TARNObjectRegistry() override;
    TARNObjectRegistry(const TARNObjectRegistry&) = delete;
    TARNObjectRegistry& operator=(const TARNObjectRegistry&) = delete;

    void registerPointer(TARNSchemaTypeI* p) override;
    void registerPointer(TARN_String* p) override;
    void registerPointer(TARNBase64Binary* p) override;
    void registerPointer(TARN_CharStreamable* p) override;
    void registerPointer(BRIMOutputStream* p) override;
    void clean() override;

    /// The number of entries.
    std::size_t size() const { return m_entries.size(); }

private:
    enum class Kind : unsigned char { SchemaType, String, Base64Binary, CharStreamable, Stream };

    struct Entry {
        void* pointer;
        Kind kind;
    };

    TARNObjectRegistry() = default;

    static void free(const Entry& entry);

    std::vector<Entry> m_entries;
};
