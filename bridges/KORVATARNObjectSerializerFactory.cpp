#include "korva/KORVATARNObjectSerializerFactory.h"

#include <korva/KORVATARNObjectSerializer.h>
#include <zel/ZELFrame.h>

constinit KORVATARNObjectSerializerFactory KORVATARNObjectSerializerFactory::g_instance;

KORVATARNObjectSerializerFactory& KORVATARNObjectSerializerFactory::getInstance() {
    return g_instance;
}

KORVATARNObjectSerializerI* KORVATARNObjectSerializerFactory::create() {
    ZEL_TRY {
        return new KORVATARNObjectSerializer;
    }
    ZEL_CATCH("KORVATARNObjectSerializerFactory::create()");
}

void KORVATARNObjectSerializerFactory::destroy(KORVATARNObjectSerializerI* serializer) {
    delete serializer;
}
