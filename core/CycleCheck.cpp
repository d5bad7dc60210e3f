#include "core/CycleCheck.h"

#include "core/ChildWalk.h"
#include "core/NumberedError.h"

#include <i18n/KORVAMessageId.h>
#include <zel/ZELFrame.h>

namespace korva {

namespace {

Cycle<KORVASchemaTypeI> findCycleBelow(const KORVASchemaTypeI& root) {
    return findCycle(root, [](const KORVASchemaTypeI& object, auto&& visit) {
        if (refusesToBeWalked(object)) return;
        ChildWalk walk(object, true);
        if (walk.isContent()) return;
        for (Child child; walk.next(child);)
            if (child.value != nullptr && KORVASchemaTypesFactory::isGeneratedType(child.type))
                visit(walk.isArray() ? "item" : child.name,
                      static_cast<const KORVASchemaTypeI*>(child.value));
    });
}

}  // namespace

void raiseCycle(const char* className, const char* childName, const char* holderName) {
    KORVA_RAISE(eKORVA_ObjectHoldsItself, nullptr, className, childName, holderName);
}

void refuseCycle(const KORVASchemaTypeI& root) {
    Cycle<KORVASchemaTypeI> cycle{};
    ZEL_TRY {
        cycle = findCycleBelow(root);
    }
    ZEL_CATCH(nullptr);
    if (cycle.object != nullptr)
        raiseCycle(cycle.object->generatedObjectName(), cycle.name,
                   cycle.holder->generatedObjectName());
}

bool hasCycle(const KORVASchemaTypeI& root) {
    ZEL_TRY {
        return findCycleBelow(root).object != nullptr;
    }
    ZEL_CATCH(nullptr);
}

}  // namespace korva
