#include "generator/passes/Passes.h"

#include <bit>

namespace korva::schemac::passes {

using namespace model;

namespace {

// The library looks at as many top bits of an identity; what is made checks that.
constexpr unsigned kTypeIndexBits = 10;
constexpr unsigned kWordIndexBits = 12;

// A power of two of entries, more than half of them free.
std::vector<std::size_t> hashTable(const std::vector<Field>& fields) {
    std::vector<std::size_t> entries(std::bit_ceil(2 * fields.size() + 1));
    for (std::size_t position = 0; position < fields.size(); ++position) {
        std::size_t i = unsignedIdentity(fields[position].identity);
        while (entries[i % entries.size()] != 0)
            ++i;
        entries[i % entries.size()] = position + 1;
    }
    return entries;
}

class IndexBuilder {
public:
    explicit IndexBuilder(unsigned bits) : m_index{bits, {}} {
        m_index.starts.resize((std::size_t{1} << bits) + 1);
    }

    void count(std::int32_t identity) {
        ++m_index.starts[(unsignedIdentity(identity) >> (32 - m_index.bits)) + 1];
    }

    TopBitsIndex take() {
        std::size_t before = 0;
        for (std::size_t& start : m_index.starts)
            start = before += start;
        return std::move(m_index);
    }

private:
    TopBitsIndex m_index;
};

}  // namespace

void decideTables(Schema& schema) {
    for (Type& type : schema.types)
        type.hashes = hashTable(type.fields);
    IndexBuilder types(kTypeIndexBits);
    for (const Type* type : schema.byIdentity)
        types.count(type->identity);
    schema.typeIndex = types.take();
    IndexBuilder words(kWordIndexBits);
    for (const TableWord& word : schema.words)
        words.count(word.identity);
    schema.wordIndex = words.take();
}

}  // namespace korva::schemac::passes
