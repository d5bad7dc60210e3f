#include "korva/KORVA_Path.h"

#include "core/NearestName.h"
#include "core/NumberedError.h"
#include "core/PathRoot.h"

#include <i18n/KORVAMessageId.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVA_EnumObject.h>
#include <korva/KORVA_RestrictedString.h>
#include <korva/KORVA_String.h>
#include <zel/ZELFrame.h>
#include <zel/ZELOwner.h>

#include <algorithm>
#include <charconv>
#include <system_error>
#include <utility>

using korva::ObjectRoot;
using korva::PathRoot;
using Factory = KORVASchemaTypesFactory;
using Step = KORVA_Path::Step;
using StepKind = KORVA_Path::StepKind;

namespace {

[[noreturn]] void refusePath(std::string_view path, const char* reason) {
    KORVA_RAISE(eKORVA_BadPath, "KORVA_Path", std::string(path).c_str(), reason);
}

Step readStep(std::string_view text, std::string_view path) {
    if (text.empty()) refusePath(path, "a step is empty");
    if (text == "*") return {StepKind::Any, "*", 0};
    if (text.front() < '0' || text.front() > '9') return {StepKind::Name, std::string(text), 0};
    std::size_t index = 0;
    const char* const end = text.data() + text.size();
    const auto [behind, error] = std::from_chars(text.data(), end, index);
    if (behind != end || error != std::errc() || (text.front() == '0' && text.size() != 1))
        refusePath(path, "a step that begins with a digit is no index");
    return {StepKind::Index, std::string(text), index};
}

std::string join(const std::vector<Step>& steps, std::size_t count) {
    std::string result;
    for (std::size_t i = 0; i != count; ++i) {
        if (i != 0) result += '/';
        result += steps[i].name;
    }
    return result;
}

/// What the children of a place are called, first what `wanted` may have been meant to be.
std::string inventory(const PathRoot& place, const Step& wanted) {
    std::string result = place.className();
    if (const auto next = place.newElement()) {
        result += " with ";
        return result += next->index() == 0
                             ? "no elements"
                             : "the elements 0 to " + std::to_string(next->index() - 1);
    }
    std::vector<std::string> names;
    for (const KORVA_Child& child : place.children())
        if (std::string name = child.name(); !name.empty()) names.push_back(std::move(name));
    std::vector<const char*> texts;
    texts.reserve(names.size());
    for (const std::string& name : names)
        texts.push_back(name.c_str());
    if (const char* const nearest = korva::nearestName(wanted.name, texts)) {
        const auto found = std::find(texts.begin(), texts.end(), nearest);
        std::rotate(texts.begin(), found, found + 1);
    }
    const char* separator = " with ";
    for (const char* const text : texts) {
        result.append(separator).append(text);
        separator = ", ";
    }
    return result;
}

/// What a child is that has no children.
std::string leaf(const KORVA_Child& child) {
    if (child.isNull()) return "a child that isn't set";
    return std::string("a value of the type ") +
           Factory::getInstance().objectTypeToXSIType(child.type());
}

/// Tells that the first `count` steps lead nowhere.
[[noreturn]] void raiseDeadEnd(const std::vector<Step>& steps, std::size_t count,
                               const std::string& found) {
    KORVA_RAISE(eKORVA_NoSuchPath, "KORVA_Path", join(steps, steps.size()).c_str(),
                join(steps, count).c_str(), found.c_str());
}

[[noreturn]] void raiseWrongKind(const std::vector<Step>& steps, const char* expected,
                                 const KORVA_Child& child) {
    const std::string found =
        std::string("one of the type ") + Factory::getInstance().objectTypeToXSIType(child.type());
    KORVA_RAISE(eKORVA_WrongKind, "KORVA_Path", expected, join(steps, steps.size()).c_str(),
                found.c_str());
}

/// Follows all steps, of which there is one at least.
std::optional<KORVA_Child> follow(const PathRoot& root, const std::vector<Step>& steps,
                                  bool mustExist) {
    std::optional<KORVA_Child> child = root.find(steps.front());
    if (!child && mustExist) raiseDeadEnd(steps, 1, inventory(root, steps.front()));
    for (std::size_t i = 1; child && i != steps.size(); ++i) {
        if (!child->isObject() || child->isNull()) {
            if (mustExist) raiseDeadEnd(steps, i + 1, leaf(*child));
            return std::nullopt;
        }
        const ObjectRoot place(*child->asObject());
        child = place.find(steps[i]);
        if (!child && mustExist) raiseDeadEnd(steps, i + 1, inventory(place, steps[i]));
    }
    return child;
}

/// What the path without steps leads to.
KORVA_Child childOfRoot(const PathRoot& root) {
    KORVASchemaTypeI* const object = root.object();
    if (object == nullptr) refusePath("", "a message has parameters, and is none");
    return {"", object->getObjectType(), object};
}

void appendMatches(const PathRoot& place, const KORVA_Path& path, const Step& step,
                   std::vector<KORVA_PathMatch>& matches) {
    if (step.kind != StepKind::Any) {
        if (const auto child = place.find(step)) matches.push_back({path / *child, *child});
        return;
    }
    for (const KORVA_Child& child : place.children())
        if (!child.name().empty()) matches.push_back({path / child, child});
}

/// One change of what a path leads to. What is made on the way is filled first, and becomes a part
/// of the root last, so that a failure leaves the root as it was.
class Change {
public:
    Change(PathRoot& root, const std::vector<Step>& steps, KORVAObjectRegistryI& registry)
        : m_steps(steps), m_registry(registry), m_place(&root) {
        m_way.reserve(steps.size());
    }

    void run(const KORVA_PathValue& value) {
        const std::size_t last = m_steps.size() - 1;
        for (std::size_t i = 0; i != last; ++i)
            enter(slot(i), i);
        assign(slot(last), value);
        if (m_firstNew != nullptr)
            m_joint->store(*m_jointChild, m_firstNew, m_firstNew->getObjectType());
    }

private:
    /// The child to which a step leads, or the place of a new element.
    KORVA_Child slot(std::size_t i) const {
        if (const auto child = m_place->find(m_steps[i])) return *child;
        const auto next = m_place->newElement();
        if (!next || m_steps[i].kind != StepKind::Index || m_steps[i].index != next->index())
            raiseDeadEnd(m_steps, i + 1, inventory(*m_place, m_steps[i]));
        return *next;
    }

    void enter(const KORVA_Child& child, std::size_t i) {
        if (!child.isObject()) raiseDeadEnd(m_steps, i + 2, leaf(child));
        KORVASchemaTypeI* const object = child.asObject();
        m_place = &m_way.emplace_back(object != nullptr ? *object : make(child));
    }

    KORVASchemaTypeI& make(const KORVA_Child& child) {
        KORVASchemaTypeI* const object =
            m_registry.own(ZELOwner<KORVASchemaTypeI>(Factory::getInstance().create(child.type())));
        if (m_firstNew == nullptr) {
            m_joint = m_place;
            m_jointChild = child;
            m_firstNew = object;
        } else {
            m_place->store(child, object, object->getObjectType());
        }
        return *object;
    }

    void assign(const KORVA_Child& child, const KORVA_PathValue& value) {
        if (value.isNull()) {
            if (!m_place->clear(child)) raiseWrongKind(m_steps, "A value that may be unset", child);
        } else if (value.type() == KORVASchemaTypeI::eString) {
            assignText(child, value.text());
        } else {
            if (!m_place->isReplaceable(child))
                raiseWrongKind(m_steps, "A value that can be replaced", child);
            m_place->store(child, value.pointer(), value.type());
        }
    }

    void assignText(const KORVA_Child& child, std::string_view text) {
        if (child.isText()) {
            m_place->store(child, keep(text), KORVASchemaTypeI::eString);
            return;
        }
        if (!child.isObject()) raiseWrongKind(m_steps, "A text", child);
        KORVASchemaTypeI& object = child.isNull() ? make(child) : *child.asObject();
        if (dynamic_cast<KORVA_RestrictedString*>(&object) == nullptr &&
            dynamic_cast<KORVA_EnumObject*>(&object) == nullptr)
            raiseWrongKind(m_steps, "A text", child);
        object.setChildObject("", keep(text), KORVASchemaTypeI::eString, nullptr);
    }

    ZELByteBuffer* keep(std::string_view text) {
        auto* const kept = m_registry.make<KORVA_String>();
        kept->appendChars(text.data(), text.size());
        return kept->buffer();
    }

    const std::vector<Step>& m_steps;
    KORVAObjectRegistryI& m_registry;
    std::vector<ObjectRoot> m_way;
    PathRoot* m_place;  ///< where the next step starts

    // Where the first object that was made is to stand.
    PathRoot* m_joint = nullptr;
    std::optional<KORVA_Child> m_jointChild;
    KORVASchemaTypeI* m_firstNew = nullptr;
};

}  // namespace

KORVA_Path::KORVA_Path(std::string_view text) {
    if (text.empty()) return;
    ZEL_TRY {
        for (std::string_view rest = text;;) {
            const std::size_t end = rest.find('/');
            m_steps.push_back(readStep(rest.substr(0, end), text));
            if (end == std::string_view::npos) break;
            rest.remove_prefix(end + 1);
        }
    }
    ZEL_CATCH("KORVA_Path::KORVA_Path");
}

bool KORVA_Path::isPattern() const {
    for (const Step& step : m_steps)
        if (step.kind == StepKind::Any) return true;
    return false;
}

std::string KORVA_Path::toString() const {
    ZEL_TRY {
        return join(m_steps, m_steps.size());
    }
    ZEL_CATCH("KORVA_Path::toString");
}

KORVA_Path KORVA_Path::operator/(const KORVA_Child& child) const {
    ZEL_TRY {
        KORVA_Path result(*this);
        const StepKind kind = child.isElement() ? StepKind::Index : StepKind::Name;
        result.m_steps.push_back({kind, child.name(), child.index()});
        return result;
    }
    ZEL_CATCH("KORVA_Path::operator/");
}

bool KORVA_Path::matches(const KORVA_Path& place) const {
    if (m_steps.size() != place.m_steps.size()) return false;
    for (std::size_t i = 0; i != m_steps.size(); ++i)
        if (m_steps[i].kind != StepKind::Any && m_steps[i] != place.m_steps[i]) return false;
    return true;
}

KORVA_Child KORVA_Path::get(const PathRoot& root) const {
    ZEL_TRY {
        if (isPattern()) refusePath(toString(), "its * leads to many places");
        return empty() ? childOfRoot(root) : *follow(root, m_steps, true);
    }
    ZEL_CATCH("KORVA_Path::get");
}

std::optional<KORVA_Child> KORVA_Path::find(const PathRoot& root) const {
    ZEL_TRY {
        if (isPattern()) refusePath(toString(), "its * leads to many places");
        return empty() ? childOfRoot(root) : follow(root, m_steps, false);
    }
    ZEL_CATCH("KORVA_Path::find");
}

std::vector<KORVA_PathMatch> KORVA_Path::findAll(const PathRoot& root) const {
    ZEL_TRY {
        std::vector<KORVA_PathMatch> matches;
        if (empty()) {
            matches.push_back({KORVA_Path(), childOfRoot(root)});
            return matches;
        }
        appendMatches(root, KORVA_Path(), m_steps.front(), matches);
        for (std::size_t i = 1; i != m_steps.size(); ++i) {
            std::vector<KORVA_PathMatch> next;
            for (const KORVA_PathMatch& match : matches)
                if (match.child.isObject() && !match.child.isNull())
                    appendMatches(ObjectRoot(*match.child.asObject()), match.path, m_steps[i],
                                  next);
            matches.swap(next);
        }
        return matches;
    }
    ZEL_CATCH("KORVA_Path::findAll");
}

void KORVA_Path::set(PathRoot& root, const KORVA_PathValue& value,
                     KORVAObjectRegistryI& registry) const {
    ZEL_TRY {
        if (isPattern()) refusePath(toString(), "its * leads to many places");
        if (empty()) refusePath("", "it leads to what holds all values");
        Change(root, m_steps, registry).run(value);
    }
    ZEL_CATCH("KORVA_Path::set");
}

KORVA_Child KORVA_Path::get(const KORVASchemaTypeI& root) const {
    return get(ObjectRoot(root));
}

std::optional<KORVA_Child> KORVA_Path::find(const KORVASchemaTypeI& root) const {
    return find(ObjectRoot(root));
}

std::vector<KORVA_PathMatch> KORVA_Path::findAll(const KORVASchemaTypeI& root) const {
    return findAll(ObjectRoot(root));
}

void KORVA_Path::set(KORVASchemaTypeI& root, const KORVA_PathValue& value,
                     KORVAObjectRegistryI& registry) const {
    ObjectRoot object(root);
    set(object, value, registry);
}
