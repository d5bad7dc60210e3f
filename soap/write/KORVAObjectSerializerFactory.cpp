#include "korva/KORVAObjectSerializerFactory.h"

#include "soap/SerializerFactory.h"

#include <korva/KORVASOAPSerializer.h>

KORVA_DEFINE_SERIALIZER_FACTORY(KORVAObjectSerializerFactory, KORVAObjectSerializerI,
                                KORVASOAPSerializer, serializer);
