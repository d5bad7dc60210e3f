#include "korva/KORVASOAPFaultSerializerFactory.h"

#include <korva/KORVASOAPFaultSerializer.h>
#include <zel/ZELFrame.h>

constinit KORVASOAPFaultSerializerFactory KORVASOAPFaultSerializerFactory::g_instance;

KORVASOAPFaultSerializerFactory& KORVASOAPFaultSerializerFactory::getInstance() {
    return g_instance;
}

KORVASOAPFaultSerializerI* KORVASOAPFaultSerializerFactory::create() {
    ZEL_TRY {
        return new KORVASOAPFaultSerializer;
    }
    ZEL_CATCH("KORVASOAPFaultSerializerFactory::create()");
}

void KORVASOAPFaultSerializerFactory::destroy(KORVASOAPFaultSerializerI* serializer) {
    delete serializer;
}
