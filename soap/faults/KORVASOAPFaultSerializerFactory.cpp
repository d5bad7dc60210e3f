#include "korva/KORVASOAPFaultSerializerFactory.h"

#include "soap/SerializerFactory.h"

#include <korva/KORVASOAPFaultSerializer.h>

KORVA_DEFINE_SERIALIZER_FACTORY(KORVASOAPFaultSerializerFactory, KORVASOAPFaultSerializerI,
                                KORVASOAPFaultSerializer, serializer);
