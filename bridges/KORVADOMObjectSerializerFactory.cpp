#include "korva/KORVADOMObjectSerializerFactory.h"

#include <korva/KORVADOMObjectSerializer.h>
#include <zel/ZELFrame.h>

constinit KORVADOMObjectSerializerFactory KORVADOMObjectSerializerFactory::g_instance;

KORVADOMObjectSerializerFactory& KORVADOMObjectSerializerFactory::getInstance() {
    return g_instance;
}

KORVADOMObjectSerializerI* KORVADOMObjectSerializerFactory::create() {
    ZEL_TRY {
        return new KORVADOMObjectSerializer;
    }
    ZEL_CATCH("KORVADOMObjectSerializerFactory::create()");
}

void KORVADOMObjectSerializerFactory::destroy(KORVADOMObjectSerializerI* serializer) {
    delete serializer;
}
