#include "korva/KORVAXMLDeserializerFactory.h"

#include "soap/SerializerFactory.h"

#include <korva/KORVAXMLDeserializer.h>

KORVA_DEFINE_SERIALIZER_FACTORY(KORVAXMLDeserializerFactory, KORVAXMLDeserializerI,
                                KORVAXMLDeserializer, deserializer);
