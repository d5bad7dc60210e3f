#include "korva/KORVATARNObjectDeserializerFactory.h"

#include "soap/SerializerFactory.h"

#include <korva/KORVATARNObjectDeserializer.h>

KORVA_DEFINE_SERIALIZER_FACTORY(KORVATARNObjectDeserializerFactory, KORVATARNObjectDeserializerI,
                                KORVATARNObjectDeserializer, deserializer);
