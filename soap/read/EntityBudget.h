/// How much a document type may make of a document.
#pragma once

#include "soap/read/ReadLimits.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>

namespace korva {

class ReadGuard;

/// Counts what a document type declares and what entities of both kinds, and default values of
/// attributes, add to a document. An expansion whose entity nobody tells counts as that of the
/// longest.
///
/// Lengths are in units of UTF-16, the parser's.
class EntityBudget {
public:
    EntityBudget(const ReadLimits& limits, ReadGuard& guard) : m_limits(limits), m_guard(guard) {}

    /// So much of the document has been read.
    void addInput(std::size_t bytes) { m_input += bytes; }

    // All of these raise KORVAException 0xEA4F0001 when the budget is spent.

    void declareEntity(std::string_view name, std::size_t length);
    void declareAttribute();
    /// An entity is about to be expanded, which makes `open` that are inside each other.
    void expand(std::size_t open);
    /// It was this one.
    void tellExpanded(std::string_view name);
    /// An element starts, with attributes of this length.
    void addElement(std::size_t attributesLength);

private:
    void spend(std::size_t units);
    void check() const;

    const ReadLimits& m_limits;
    ReadGuard& m_guard;
    std::size_t m_input = 0;
    std::size_t m_spent = 0;
    std::size_t m_expansions = 0;
    std::size_t m_attributes = 0;  ///< declared
    std::size_t m_longest = 0;     ///< of the entities' texts
    std::size_t m_untold = 0;      ///< spent on an expansion of which the entity is not told yet
    std::map<std::string, std::size_t, std::less<>> m_lengths;
};

}  // namespace korva
