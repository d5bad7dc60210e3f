#include "soap/read/EntityBudget.h"

#include "soap/read/ReadGuard.h"

#include <algorithm>

namespace korva {

namespace {

/// By how much a document may grow, whatever its size, times its size.
constexpr std::size_t growth = 10;

}  // namespace

void EntityBudget::check() const {
    if (m_spent > std::max(m_limits.expandedText, growth * m_input)) m_guard.refuseExpandedText();
}

void EntityBudget::spend(std::size_t units) {
    m_spent += units;
    check();
}

void EntityBudget::declareEntity(std::string_view name, std::size_t length) {
    // What is in an entity is told the parser without a look at it: a start tag, say.
    if (length > m_limits.startTag) m_guard.refuseStartTag();
    m_longest = std::max(m_longest, length);
    m_lengths.emplace(name, length);
}

void EntityBudget::declareAttribute() {
    // Each element is asked for each.
    if (++m_attributes > m_limits.attributes) m_guard.refuseAttributes();
}

void EntityBudget::expand(std::size_t open) {
    check();
    if (open > m_limits.entityNesting) m_guard.refuseEntityNesting();
    if (++m_expansions > m_limits.entityExpansions) m_guard.refuseEntityExpansion();
    m_untold = m_longest;
    m_spent += m_untold;
}

void EntityBudget::tellExpanded(std::string_view name) {
    const auto entity = m_lengths.find(name);
    const std::size_t length = entity != m_lengths.end() ? entity->second : 0;
    m_spent -= m_untold - std::min(length, m_untold);
    m_untold = 0;
    check();
}

void EntityBudget::addElement(std::size_t attributesLength) {
    // What stands in the document itself is paid for by its own size.
    spend(attributesLength + m_attributes);
}

}  // namespace korva
