#include "korva/KORVADOMObjectSerializerFactory.h"

#include "soap/SerializerFactory.h"

#include <korva/KORVADOMObjectSerializer.h>

KORVA_DEFINE_SERIALIZER_FACTORY(KORVADOMObjectSerializerFactory, KORVADOMObjectSerializerI,
                                KORVADOMObjectSerializer, serializer);
