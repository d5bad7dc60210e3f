#include "generator/passes/Passes.h"
#include "types/Lookup.h"

#include <bit>

namespace korva::schemac::passes {

using namespace model;

namespace {

// A power of two of entries, more than half of them free.
std::vector<std::size_t> hashTable(const std::vector<Field>& fields) {
    std::vector<std::size_t> entries(std::bit_ceil(2 * fields.size() + 1));
    for (std::size_t position = 0; position < fields.size(); ++position)
        types::enterHashed(entries, unsignedIdentity(fields[position].identity), position);
    return entries;
}

class IndexBuilder {
public:
    explicit IndexBuilder(unsigned bits) : m_index{bits, {}} {
        m_index.starts.resize(types::indexSize(bits));
    }

    void count(std::int32_t identity) {
        ++m_index.starts[types::topBits(unsignedIdentity(identity), m_index.bits) + 1];
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
    IndexBuilder typeIndex(types::typeIndexBits);
    for (const Type* type : schema.byIdentity)
        typeIndex.count(type->identity);
    schema.typeIndex = typeIndex.take();
    IndexBuilder wordIndex(types::wordIndexBits);
    for (const TableWord& word : schema.words)
        wordIndex.count(word.identity);
    schema.wordIndex = wordIndex.take();
}

}  // namespace korva::schemac::passes
