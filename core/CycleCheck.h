/// The end of what would have none: objects that hold themselves.
#pragma once

#include "core/Descriptor.h"

#include <cstddef>
#include <unordered_map>
#include <utility>
#include <vector>

namespace korva {

/// Tells a walk when to look for a cycle below the object that it is at. Trees are never so deep,
/// and so pay for nothing but the comparison; what is deep without a cycle is looked through seldom
/// enough.
class DepthWatch {
public:
    static constexpr std::size_t firstLook = 10000;

    /// @param depth of the object; one more than that of the object which holds it
    bool isDue(std::size_t depth) {
        if (depth != m_nextLook) return false;
        m_nextLook *= 2;
        return true;
    }

private:
    std::size_t m_nextLook = firstLook;
};

/// A place at which an object is held by what it holds itself.
template <class Object>
struct Cycle {
    const Object* object;  ///< null when there is no such place
    const Object* holder;
    const char* name;  ///< of the child, as the holder's getChildObjectNames gives it
};

/// The first cycle in what `root` holds. Needs time and memory in proportion to the number of
/// objects, and no stack.
/// @param visitChildren calls its second argument with name and child for each child of its first
///     that is an object
template <class Object, class VisitChildren>
Cycle<Object> findCycle(const Object& root, VisitChildren visitChildren) {
    enum State { New, Open, Closed };
    struct Step {
        Cycle<Object> place;
        bool isEnd;  ///< all below the object have been visited
    };
    std::unordered_map<const Object*, State> states;
    std::vector<Step> steps{{{&root, nullptr, nullptr}, false}};
    while (!steps.empty()) {
        const Step step = steps.back();
        State& state = states[step.place.object];
        if (step.isEnd || state == Closed) {
            state = Closed;
            steps.pop_back();
            continue;
        }
        if (state == Open) return step.place;
        state = Open;
        steps.back().isEnd = true;
        const Object& holder = *step.place.object;
        visitChildren(holder, [&](const char* name, const Object* child) {
            steps.push_back({{child, &holder, name}, false});
        });
    }
    return {};
}

/// @throws KORVAException 0xEA4F0005 always: an object holds itself
[[noreturn]] void raiseCycle(const char* className, const char* childName, const char* holderName);

/// @throws KORVAException 0xEA4F0005: an object that `root` holds, or `root` itself, holds itself
void refuseCycle(const KORVASchemaTypeI& root);

/// Whether there is such an object.
bool hasCycle(const KORVASchemaTypeI& root);

}  // namespace korva
