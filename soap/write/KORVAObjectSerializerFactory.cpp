#include "korva/KORVAObjectSerializerFactory.h"

#include <korva/KORVASOAPSerializer.h>
#include <zel/ZELFrame.h>

constinit KORVAObjectSerializerFactory KORVAObjectSerializerFactory::g_instance;

KORVAObjectSerializerFactory& KORVAObjectSerializerFactory::getInstance() {
    return g_instance;
}

KORVAObjectSerializerI* KORVAObjectSerializerFactory::create() {
    ZEL_TRY {
        return new KORVASOAPSerializer;
    }
    ZEL_CATCH("KORVAObjectSerializerFactory::create()");
}

void KORVAObjectSerializerFactory::destroy(KORVAObjectSerializerI* serializer) {
    delete serializer;
}
