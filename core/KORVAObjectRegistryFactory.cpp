#include "korva/KORVAObjectRegistryFactory.h"

#include <korva/KORVAObjectRegistry.h>

constinit KORVAObjectRegistryFactory KORVAObjectRegistryFactory::g_instance;

KORVAObjectRegistryFactory& KORVAObjectRegistryFactory::getInstance() {
    return g_instance;
}

KORVAObjectRegistryI* KORVAObjectRegistryFactory::create() {
    return KORVAObjectRegistry::create();
}

void KORVAObjectRegistryFactory::destroy(KORVAObjectRegistryI* registry) {
    delete registry;
}
