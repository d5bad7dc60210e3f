#include "soap/read/References.h"

#include "core/ArrayAccess.h"
#include "core/Fields.h"
#include "core/Names.h"
#include "core/NumberedError.h"
#include "soap/read/ReadingContext.h"
#include "soap/read/RecordReader.h"
#include "soap/read/TypeChecks.h"

#include <i18n/KORVAMessageId.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVA_ArrayObject.h>

#include <algorithm>
#include <limits>
#include <utility>

namespace korva {

namespace {

using Factory = KORVASchemaTypesFactory;

constexpr const char* label = "KORVA_ReadingPolicy::resolvesReferences()";

std::uint64_t saturatingSum(std::uint64_t left, std::uint64_t right) {
    const std::uint64_t sum = left + right;
    return sum < left ? std::numeric_limits<std::uint64_t>::max() : sum;
}

}  // namespace

References::References(ReadingContext& context, const ReadLimits& limits, RootReceiver& roots)
    : m_context(context), m_limits(limits), m_roots(roots) {
    m_nodes.emplace_back();
    m_open.push_back(message);
}

// ----- collecting -----

/// A node that `id` leads to from now on, unless it leads to another.
std::size_t References::addNode(std::string_view id, State state) {
    const std::size_t node = m_nodes.size();
    m_nodes.emplace_back().state = state;
    const auto [known, isNew] = m_ids.emplace(id, node);
    if (!isNew) m_nodes[known->second].isAmbiguous = true;
    return node;
}

/// The node stands in the innermost open element.
void References::addChild(std::size_t node) {
    Node& holder = m_nodes[m_open.back()];
    m_nodes[node].nextSibling = std::exchange(holder.firstChild, node);
}

void References::refer(const ReferencePlace& place, const char* name, std::string_view id) {
    if (m_references.size() >= m_limits.references)
        KORVA_RAISE(eKORVA_LimitExceeded, label, "references between elements",
                    std::to_string(m_limits.references).c_str(), "setMaximumReferences");
    const std::size_t reference = m_references.size();
    Node& node = m_nodes[m_open.back()];
    m_references.push_back({place, name, std::string(id), none, node.firstReference});
    node.firstReference = reference;
    // What is being read is itself the value of another element.
    if (place.kind == ReferencePlace::Kind::Root && m_reading != none)
        m_nodes[m_reading].sameAs = reference;
}

void References::open(std::string_view id) {
    const auto known = m_ids.find(id);
    std::size_t node = known != m_ids.end() ? known->second : none;
    if (node != none && node == m_reading) {
        m_open.push_back(node);
        return;
    }
    if (node != none && m_nodes[node].state == State::Recorded && m_nodes[node].record == nullptr)
        m_nodes[node].state = State::Read;
    else
        node = addNode(id, State::Read);
    addChild(node);
    m_open.push_back(node);
}

void References::close(const ElementValue& value) {
    m_nodes[m_open.back()].value = value;
    m_open.pop_back();
}

ElementRecord& References::record(std::string_view id, std::unique_ptr<ElementRecord> record) {
    m_newestRecord = addNode(id, State::Recorded);
    m_nodes[m_newestRecord].record = record.get();
    m_records.push_back(std::move(record));
    return *m_records.back();
}

void References::noteIdInRecord(std::string_view id) {
    const std::size_t node = addNode(id, State::Recorded);
    m_nodes[node].holder = m_newestRecord;
}

// ----- resolving -----

void References::resolve() {
    for (const Node& node : m_nodes)
        m_largest = saturatingSum(m_largest, node.weight);
    for (const auto& record : m_records)
        m_largest = saturatingSum(m_largest, record->size());
    constexpr std::uint64_t factor = 10;
    m_largest = std::max<std::uint64_t>(m_limits.expandedText, factor * m_largest);

    std::vector<Step> steps;
    enter(message, steps);
    while (!steps.empty())
        if (!advance(steps)) {
            leave(steps.back().node);
            steps.pop_back();
        }
    forget();
}

void References::forget() {
    Node& root = m_nodes[message];
    root.firstReference = none;
    root.firstChild = none;
    root.state = State::Read;
    m_open.assign(1, message);
    m_emptyItems.clear();
    m_reading = none;
    m_largest = 0;
}

void References::enter(std::size_t node, std::vector<Step>& steps) {
    m_nodes[node].state = State::Entered;
    steps.push_back({node, m_nodes[node].firstChild, m_nodes[node].firstReference});
}

/// Goes to the next node that the innermost one leads to; false if there is none.
bool References::advance(std::vector<Step>& steps) {
    Step& step = steps.back();
    while (step.child != none) {
        const std::size_t child = step.child;
        step.child = m_nodes[child].nextSibling;
        if (m_nodes[child].state == State::Read) {
            enter(child, steps);
            return true;
        }
    }
    while (step.reference != none) {
        const std::size_t reference = step.reference;
        step.reference = m_references[reference].next;
        const std::size_t target = targetOf(m_references[reference]);
        m_references[reference].target = target;
        if (m_nodes[target].state == State::Entered)
            KORVA_RAISE(eKORVA_CyclicReference, label, m_references[reference].name,
                        m_references[reference].id.c_str());
        if (m_nodes[target].state == State::Read) {
            enter(target, steps);
            return true;
        }
    }
    return false;
}

/// The node that a reference leads to, which has been read.
std::size_t References::targetOf(const Reference& reference) {
    // Reading adds references.
    const std::string id = reference.id;
    const char* const name = reference.name;
    const auto known = m_ids.find(id);
    if (known == m_ids.end()) KORVA_RAISE(eKORVA_NoReferredElement, label, name, id.c_str());
    const std::size_t node = known->second;
    if (m_nodes[node].isAmbiguous) KORVA_RAISE(eKORVA_AmbiguousReference, label, name, id.c_str());
    if (m_nodes[node].state == State::Recorded) {
        const std::size_t holder = m_nodes[node].holder;
        if (holder == none)
            read(node, reference.place.declared);
        else if (m_nodes[holder].state == State::Recorded)
            read(holder, KORVASchemaTypeI::e_Unknown);
    }
    if (m_nodes[node].state == State::Recorded)
        KORVA_RAISE(eKORVA_NoReferredElement, label, name, id.c_str());
    return node;
}

void References::read(std::size_t node, ObjectType declared) {
    m_nodes[node].state = State::Read;
    m_reading = node;
    RecordReader(m_context, *m_nodes[node].record).read(declared);
    m_reading = none;
}

/// All that the node leads to is done.
void References::leave(std::size_t index) {
    Node& node = m_nodes[index];
    node.state = State::Done;
    node.expanded = node.weight;
    for (std::size_t child = node.firstChild; child != none; child = m_nodes[child].nextSibling)
        addExpanded(node, child);
    for (std::size_t i = node.firstReference; i != none; i = m_references[i].next)
        addExpanded(node, m_references[i].target);
    if (node.sameAs != none) node.value = m_nodes[m_references[node.sameAs].target].value;
    for (std::size_t i = node.firstReference; i != none; i = m_references[i].next)
        if (i != node.sameAs) store(m_references[i], m_nodes[m_references[i].target].value);
    dropEmptyItems();
}

void References::addExpanded(Node& node, std::size_t other) const {
    node.expanded = saturatingSum(node.expanded, m_nodes[other].expanded);
    if (node.expanded > m_largest) refuseExpansion();
}

void References::refuseExpansion() const {
    KORVA_RAISE(eKORVA_LimitExceeded, label, "text and elements that references lead to",
                std::to_string(m_largest).c_str(), "setMaximumExpandedText");
}

// ----- storing -----

void References::store(const Reference& reference, const ElementValue& value) {
    if (value.type == KORVASchemaTypeI::e_Unknown && !value.isNil)
        KORVA_RAISE(eKORVA_NoReferredElement, label, reference.name, reference.id.c_str());
    switch (reference.place.kind) {
        case ReferencePlace::Kind::Field: storeField(reference, value); break;
        case ReferencePlace::Kind::Item: storeItem(reference, value); break;
        case ReferencePlace::Kind::Root: {
            const ObjectType declared = reference.place.declared;
            if (value.value != nullptr && declared != KORVASchemaTypeI::e_Unknown)
                checkType(reference.name, value.object(), value.type, declared);
            m_roots.setRoot(reference.place.position, value);
            break;
        }
    }
}

void References::storeField(const Reference& reference, const ElementValue& value) {
    const FieldDescriptor& field = *reference.place.field;
    KORVASchemaTypeI& object = *reference.place.object;
    Record& record = *ClassDescriptor::recordOf(object);
    if (value.value == nullptr) return;
    if (types::isValue(field.kind)) {
        if (!storeValue(record, field, value.value, value.type))
            checkType(reference.name, value.object(), value.type, field.type);
        return;
    }
    checkType(reference.name, value.object(), value.type, field.type);
    if (field.kind == FieldKind::EmbeddedArray) {
        storeArray(*static_cast<KORVASchemaTypeI*>(readField(record, field, true)), value);
        return;
    }
    if (readField(record, field, false) != nullptr)
        KORVA_RAISE(eKORVA_ElementTwice, label, xmlName(object.getObjectType()), reference.name);
    korva::store(record, field.offset, value.value);
}

/// Appends the items of the value to an array that stands in its holder.
void References::storeArray(KORVASchemaTypeI& target, const ElementValue& value) {
    const auto& source =
        static_cast<const KORVA_ArrayObject&>(*static_cast<const KORVASchemaTypeI*>(value.value));
    auto& array = static_cast<KORVA_ArrayObject&>(target);
    const std::size_t count = source.size();
    m_copied = saturatingSum(m_copied, count);
    if (m_copied > m_largest) refuseExpansion();
    const std::size_t first = array.size();
    ArrayAccess::resize(array, first + count);
    for (std::size_t i = 0; i != count; ++i)
        ArrayAccess::setSlot(array, first + i, ArrayAccess::slot(source, i));
}

void References::storeItem(const Reference& reference, const ElementValue& value) {
    auto& array = static_cast<KORVA_ArrayObject&>(*reference.place.object);
    if (value.value == nullptr) {
        m_emptyItems.push_back({&array, reference.place.position});
        return;
    }
    checkItemType(value.object(), value.type, reference.place.declared);
    ArrayAccess::setSlot(array, reference.place.position, value.value);
}

void References::dropEmptyItems() {
    std::sort(m_emptyItems.begin(), m_emptyItems.end(),
              [](const EmptyItem& left, const EmptyItem& right) {
                  return std::less<>()(left.array, right.array) ||
                         (left.array == right.array && left.position < right.position);
              });
    for (auto item = m_emptyItems.begin(); item != m_emptyItems.end();) {
        auto& array = static_cast<KORVA_ArrayObject&>(*item->array);
        std::size_t kept = item->position;
        for (std::size_t i = kept; i != array.size(); ++i) {
            if (item != m_emptyItems.end() && item->array == &array && item->position == i)
                ++item;
            else
                ArrayAccess::setSlot(array, kept++, ArrayAccess::slot(array, i));
        }
        ArrayAccess::resize(array, kept);
    }
    m_emptyItems.clear();
}

}  // namespace korva
