#include "korva/KORVASAXObjectSerializerFactory.h"

#include <korva/KORVASAXObjectSerializer.h>
#include <zel/ZELFrame.h>

constinit KORVASAXObjectSerializerFactory KORVASAXObjectSerializerFactory::g_instance;

KORVASAXObjectSerializerFactory& KORVASAXObjectSerializerFactory::getInstance() {
    return g_instance;
}

KORVASAXObjectSerializerI* KORVASAXObjectSerializerFactory::create() {
    ZEL_TRY {
        return new KORVASAXObjectSerializer;
    }
    ZEL_CATCH("KORVASAXObjectSerializerFactory::create()");
}

void KORVASAXObjectSerializerFactory::destroy(KORVASAXObjectSerializerI* serializer) {
    delete serializer;
}
