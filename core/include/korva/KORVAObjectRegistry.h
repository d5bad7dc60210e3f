/// The library's own object registry.
#pragma once

#include <korva/KORVAObjectRegistryI.h>

#include <cstddef>
#include <vector>

/// What an entry of a registry holds, and so how it is freed.
enum KORVAObjRegEnum : int {
    eKORVARegSchemaType = 0,
    eKORVARegStdString = 1,
    eKORVARegString = 2,
    eKORVARegI18NString = 3,
    eKORVARegOutputStream = 4,
    eKORVARegBase64Binary = 5,
    eKORVARegCharStreamable = 6,
    eKORVARegAttachmentContainer = 7,
    eKORVARegDelete = 8,
    eKORVARegDeleteScalar = 9,
    eKORVARegDeleteObject = 10,
    eKORVARegDeleteArray = 11,
    eKORVARegFree = 12,
    eKORVARegRefCountConstChar = 13
};

/// A KORVAObjectRegistryI over one vector: registering is an append of two words.
class KORVA_EXPORT KORVAObjectRegistry final : public KORVAObjectRegistryI {
public:
    /// A new registry with a reference count of 0 and room for 100 entries.
    /// @throws ZELOutOfMemoryError no memory is left
    static KORVAObjectRegistry* create();

    /// Sweeps as clean() does and drops any exception; the remaining entries are then not freed.
    ~KORVAObjectRegistry() override;
    KORVAObjectRegistry(const KORVAObjectRegistry&) = delete;
    KORVAObjectRegistry& operator=(const KORVAObjectRegistry&) = delete;

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

    /// The number of entries.
    std::size_t size() const { return m_entries.size(); }
    /// The number of entries that fit before the list grows, by half of this number.
    std::size_t capacity() const { return m_entries.capacity(); }

private:
    struct RegistrationEntry {
        void* pointer;
        KORVAObjRegEnum kind;
    };

    KORVAObjectRegistry();

    static KORVAObjRegEnum mapMode(KORVADeleteMode mode);
    static void free(const RegistrationEntry& entry);
    void validateNewEntry(void* p) const;
    void append(void* p, KORVAObjRegEnum kind);
    void grow();

    std::vector<RegistrationEntry> m_entries;
};
