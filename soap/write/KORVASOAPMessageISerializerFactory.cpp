#include "korva/KORVASOAPMessageISerializerFactory.h"

#include <korva/KORVASOAPMessageISerializer.h>
#include <zel/ZELFrame.h>

constinit KORVASOAPMessageISerializerFactory KORVASOAPMessageISerializerFactory::g_instance;

KORVASOAPMessageISerializerFactory& KORVASOAPMessageISerializerFactory::getInstance() {
    return g_instance;
}

KORVASOAPMessageISerializerI* KORVASOAPMessageISerializerFactory::create() {
    ZEL_TRY {
        return new KORVASOAPMessageISerializer;
    }
    ZEL_CATCH("KORVASOAPMessageISerializerFactory::create()");
}

void KORVASOAPMessageISerializerFactory::destroy(KORVASOAPMessageISerializerI* serializer) {
    delete serializer;
}
