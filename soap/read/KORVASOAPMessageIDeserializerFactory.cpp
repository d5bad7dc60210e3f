#include "korva/KORVASOAPMessageIDeserializerFactory.h"

#include "soap/SerializerFactory.h"

#include <korva/KORVASOAPMessageIDeserializer.h>

KORVA_DEFINE_SERIALIZER_FACTORY(KORVASOAPMessageIDeserializerFactory,
                                KORVASOAPMessageIDeserializerI, KORVASOAPMessageIDeserializer,
                                deserializer);
