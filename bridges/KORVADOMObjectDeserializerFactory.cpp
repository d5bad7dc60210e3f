#include "korva/KORVADOMObjectDeserializerFactory.h"

#include <korva/KORVADOMObjectDeserializer.h>
#include <zel/ZELFrame.h>

constinit KORVADOMObjectDeserializerFactory KORVADOMObjectDeserializerFactory::g_instance;

KORVADOMObjectDeserializerFactory& KORVADOMObjectDeserializerFactory::getInstance() {
    return g_instance;
}

KORVADOMObjectDeserializerI* KORVADOMObjectDeserializerFactory::create() {
    ZEL_TRY {
        return new KORVADOMObjectDeserializer;
    }
    ZEL_CATCH("KORVADOMObjectDeserializerFactory::create()");
}

void KORVADOMObjectDeserializerFactory::destroy(KORVADOMObjectDeserializerI* deserializer) {
    delete deserializer;
}
