// A program outside the project: it sees what is installed and nothing else.
#include <korva/KORVABooleanProp.h>
#include <korva/KORVAObjectRegistryFactory.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVASchedule.h>
#include <zel/ZELSmartPointer.h>

#include <cstdio>
#include <cstring>

int main() {
    const ZELSmartPointer<KORVAObjectRegistryI> registry(
        KORVAObjectRegistryFactory::getInstance().create());

    KORVASchedule schedule;
    schedule.getActive(registry.get())->setValue(true);

    const bool* active = schedule.getActive()->getValue();
    std::printf("%s is %s\n", schedule.generatedObjectName(),
                active && *active ? "active" : "idle");
    return active && *active && std::strcmp(schedule.generatedObjectName(), "KORVASchedule") == 0
               ? 0
               : 1;
}
