#include "korva/KORVATARNObjectDeserializerFactory.h"

#include <korva/KORVATARNObjectDeserializer.h>
#include <zel/ZELFrame.h>

constinit KORVATARNObjectDeserializerFactory KORVATARNObjectDeserializerFactory::g_instance;

KORVATARNObjectDeserializerFactory& KORVATARNObjectDeserializerFactory::getInstance() {
    return g_instance;
}

KORVATARNObjectDeserializerI* KORVATARNObjectDeserializerFactory::create() {
    ZEL_TRY {
        return new KORVATARNObjectDeserializer;
    }
    ZEL_CATCH("KORVATARNObjectDeserializerFactory::create()");
}

void KORVATARNObjectDeserializerFactory::destroy(KORVATARNObjectDeserializerI* deserializer) {
    delete deserializer;
}
