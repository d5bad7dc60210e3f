#include "korva/KORVAMessageI.h"

#include "core/ObjectCreation.h"

#include <korva/KORVAHalyardHeader.h>
#include <korva/KORVAObjectRegistryFactory.h>

KORVAMessageI::KORVAMessageI() noexcept : m_halyardHeader(nullptr) {}

KORVAMessageI::~KORVAMessageI() {
    m_halyardHeader = nullptr;
}

KORVAHalyardHeader* KORVAMessageI::getHalyardHeader(KORVAObjectRegistryI* registry) {
    return korva::createOnGet(m_halyardHeader, registry);
}

void KORVAMessageI::setHalyardHeader(KORVAHalyardHeader* header) {
    m_halyardHeader = header;
}

void KORVAMessageI::setObjectRegistry(KORVAObjectRegistryI* registry) {
    m_objectRegistry = registry;
}

KORVAObjectRegistryI* KORVAMessageI::getObjectRegistry() {
    if (!m_objectRegistry) m_objectRegistry = KORVAObjectRegistryFactory::getInstance().create();
    return m_objectRegistry.get();
}
