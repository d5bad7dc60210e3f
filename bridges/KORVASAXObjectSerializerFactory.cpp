#include "korva/KORVASAXObjectSerializerFactory.h"

#include "soap/SerializerFactory.h"

#include <korva/KORVASAXObjectSerializer.h>

KORVA_DEFINE_SERIALIZER_FACTORY(KORVASAXObjectSerializerFactory, KORVASAXObjectSerializerI,
                                KORVASAXObjectSerializer, serializer);
