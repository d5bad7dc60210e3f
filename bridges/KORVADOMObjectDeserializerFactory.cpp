#include "korva/KORVADOMObjectDeserializerFactory.h"

#include "soap/SerializerFactory.h"

#include <korva/KORVADOMObjectDeserializer.h>

KORVA_DEFINE_SERIALIZER_FACTORY(KORVADOMObjectDeserializerFactory, KORVADOMObjectDeserializerI,
                                KORVADOMObjectDeserializer, deserializer);
