/// What nearly every program uses, in one header: registries, messages and their bindings, the
/// writer and the readers of envelopes, exceptions, and the streams that envelopes go through. The
/// classes of the schema, the messages and the port types have a header each.
#pragma once

#include <brim/BRIMDescriptorInputStream.h>
#include <brim/BRIMDescriptorOutputStream.h>
#include <brim/BRIMFileInputStream.h>
#include <brim/BRIMFileOutputStream.h>
#include <brim/BRIMMemoryInputStream.h>
#include <brim/BRIMMemoryOutputStream.h>
#include <brim/BRIMStreamError.h>
#include <korva/KORVAException.h>
#include <korva/KORVAMessageI.h>
#include <korva/KORVAObjectRegistry.h>
#include <korva/KORVAObjectRegistryFactory.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVAPortTypeBinding.h>
#include <korva/KORVAPortTypeI.h>
#include <korva/KORVASOAPFault.h>
#include <korva/KORVASOAPFaultException.h>
#include <korva/KORVASOAPFaultSerializer.h>
#include <korva/KORVASOAPMessageIDeserializer.h>
#include <korva/KORVASOAPMessageISerializer.h>
#include <korva/KORVAVersion.h>
#include <korva/KORVAXMLDeserializer.h>
#include <korva/KORVA_AttachmentHandler.h>
#include <korva/KORVA_EnvelopeReader.h>
#include <korva/KORVA_PortTypes.h>
#include <korva/KORVA_XmlPlatform.h>
#include <zel/ZELAssertError.h>
#include <zel/ZELOutOfMemoryError.h>
#include <zel/ZELSmartPointer.h>
#include <zel/ZELStdExceptionError.h>
#include <zel/ZELThrowable.h>
