#include "korva/KORVAXMLDeserializerFactory.h"

#include <korva/KORVAXMLDeserializer.h>
#include <zel/ZELFrame.h>

constinit KORVAXMLDeserializerFactory KORVAXMLDeserializerFactory::g_instance;

KORVAXMLDeserializerFactory& KORVAXMLDeserializerFactory::getInstance() {
    return g_instance;
}

KORVAXMLDeserializerI* KORVAXMLDeserializerFactory::create() {
    ZEL_TRY {
        return new KORVAXMLDeserializer;
    }
    ZEL_CATCH("KORVAXMLDeserializerFactory::create()");
}

void KORVAXMLDeserializerFactory::destroy(KORVAXMLDeserializerI* deserializer) {
    delete deserializer;
}
