#include "korva/KORVATARNObjectSerializerFactory.h"

#include "soap/SerializerFactory.h"

#include <korva/KORVATARNObjectSerializer.h>

KORVA_DEFINE_SERIALIZER_FACTORY(KORVATARNObjectSerializerFactory, KORVATARNObjectSerializerI,
                                KORVATARNObjectSerializer, serializer);
