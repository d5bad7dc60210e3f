#include "korva/KORVASOAPMessageIDeserializerFactory.h"

#include <korva/KORVASOAPMessageIDeserializer.h>
#include <zel/ZELFrame.h>

constinit KORVASOAPMessageIDeserializerFactory KORVASOAPMessageIDeserializerFactory::g_instance;

KORVASOAPMessageIDeserializerFactory& KORVASOAPMessageIDeserializerFactory::getInstance() {
    return g_instance;
}

KORVASOAPMessageIDeserializerI* KORVASOAPMessageIDeserializerFactory::create() {
    ZEL_TRY {
        return new KORVASOAPMessageIDeserializer;
    }
    ZEL_CATCH("KORVASOAPMessageIDeserializerFactory::create()");
}

void KORVASOAPMessageIDeserializerFactory::destroy(KORVASOAPMessageIDeserializerI* deserializer) {
    delete deserializer;
}
