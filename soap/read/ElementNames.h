/// From a parser's wide names to the object model's.
#pragma once

#include <xercesc/util/XercesDefs.hpp>

#include <array>
#include <cstddef>
#include <string>
#include <unordered_set>

namespace korva {

/// Turns names of elements, attributes and namespaces into UTF-8. A word of the schema gives the
/// pointer of the word table, which the tables of the object model take without reading it. Belongs
/// to one parse.
class ElementNames {
public:
    /// The name in UTF-8; the empty text for null. Lives as long as this object, a word of the
    /// schema as long as the process.
    const char* find(const XMLCh* name);

    /// How many different names there were that are no words of the schema.
    std::size_t count() const { return m_others.size(); }

private:
    /// What was found for a name at this address. The address may hold another name by now.
    struct Recent {
        const XMLCh* address;
        const char* text;
    };
    static constexpr std::size_t recentCount = 128;

    const char* convert(const XMLCh* name);

    std::array<Recent, recentCount> m_recent{};
    std::unordered_set<std::string> m_others;  ///< names that are no words of the schema
};

}  // namespace korva
