#include "korva/KORVA_OpenWords.h"

#include "core/Names.h"
#include "core/NumberedError.h"
#include "core/OpenWordTable.h"

#include <i18n/KORVAMessageId.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVA_EnumObject.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>
#include <zel/ZELThreadGuard.h>
#include <zel/ZELThreadLockableResource.h>

#include <atomic>
#include <cstring>
#include <memory>
#include <string_view>

namespace korva {

namespace {

constexpr const char* addLabel = "KORVA_OpenWords::add()";

/// A list that grows at its start. Who reads it sees whole words only.
constinit std::atomic<const OpenWord*> g_words{nullptr};
constinit ZELThreadLockableResource g_lock;

[[noreturn]] void refuseEnumeration(const char* name) {
    KORVA_RAISE(eKORVA_NotOpenEnum, addLabel, name);
}

/// The word with this value that the schema or a program gave the enumeration, or null.
const char* knownWord(const EnumDescriptor& enumeration, std::uint32_t crc) {
    for (std::size_t i = 0; i < enumeration.entryCount; ++i)
        if (enumeration.entries[i].crc == crc) return word(crc);
    const OpenWord* const added = findOpenWord(enumeration, crc);
    return added != nullptr ? added->text : nullptr;
}

}  // namespace

const OpenWord* findOpenWord(const EnumDescriptor& enumeration, std::uint32_t crc) {
    for (const OpenWord* word = g_words.load(std::memory_order_acquire); word != nullptr;
         word = word->next)
        if (word->crc == crc && word->enumeration == &enumeration) return word;
    return nullptr;
}

/// Adds what the caller checked.
class OpenWordTable {
public:
    static int add(const char* enumerationName, const char* text) {
        const EnumDescriptor& enumeration = openEnumeration(enumerationName);
        const std::uint32_t crc = nameCrc(text);
        const ZELThreadGuard guard(g_lock);
        const char* const known =
            crc <= KORVA_EnumObject::otherWord ? "" : knownWord(enumeration, crc);
        if (known == nullptr) {
            const std::size_t size = std::strlen(text) + 1;
            std::unique_ptr<char[]> copy(new char[size]);
            std::memcpy(copy.get(), text, size);
            const OpenWord* const first = g_words.load(std::memory_order_relaxed);
            auto word = std::make_unique<OpenWord>(OpenWord{&enumeration, crc, copy.get(), first});
            copy.release();
            g_words.store(word.release(), std::memory_order_release);
        } else if (std::string_view(known) != text) {
            KORVA_RAISE(eKORVA_WordValueTaken, addLabel, text, enumerationName, known);
        }
        return static_cast<int>(crc);
    }

private:
    /// The enumeration with this name, which must be open.
    static const EnumDescriptor& openEnumeration(const char* name) {
        const ObjectType type = KORVASchemaTypesFactory::getInstance().busTypeToObjectType(name);
        const TypeDescriptor* const row = findType(type);
        if (row == nullptr || row->create == nullptr) refuseEnumeration(name);
        const std::unique_ptr<KORVASchemaTypeI> object(row->create());
        const auto* const enumeration = dynamic_cast<const KORVA_EnumObject*>(object.get());
        if (enumeration == nullptr || !enumeration->isOpen()) refuseEnumeration(name);
        return enumeration->descriptor();
    }
};

}  // namespace korva

int KORVA_OpenWords::add(const char* enumeration, const char* word) {
    ZEL_ASSERT(enumeration);
    ZEL_ASSERT(word);
    ZEL_ASSERT(*word != '\0');
    ZEL_TRY {
        return korva::OpenWordTable::add(enumeration, word);
    }
    ZEL_CATCH("KORVA_OpenWords::add()");
}
