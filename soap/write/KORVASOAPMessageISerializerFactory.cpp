#include "korva/KORVASOAPMessageISerializerFactory.h"

#include "soap/SerializerFactory.h"

#include <korva/KORVASOAPMessageISerializer.h>

KORVA_DEFINE_SERIALIZER_FACTORY(KORVASOAPMessageISerializerFactory, KORVASOAPMessageISerializerI,
                                KORVASOAPMessageISerializer, serializer);
