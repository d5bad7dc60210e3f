#include <korva/KORVAObjectRegistry.h>
#include <korva/KORVAObjectRegistryFactory.h>

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
