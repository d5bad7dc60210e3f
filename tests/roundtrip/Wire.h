/// Writing and reading in memory.
#pragma once

#include "tests/support/Registry.h"

#include <korva/KORVAPortTypeBinding.h>
#include <korva/KORVASOAPMessageIDeserializer.h>
#include <korva/KORVASchemaTypeI.h>
#include <korva/KORVAXMLDeserializer.h>
#include <zel/ZELSmartPointer.h>

#include <gtest/gtest.h>

#include <string>

namespace korva::test {

using Binding = ZELSmartPointer<KORVAPortTypeBinding>;

/// The document "bus:`name`" that `object` is written as.
std::string writeDocument(const KORVASchemaTypeI& object, const char* name,
                          bool writeNullElements = false);

/// The root of a document, null if it can't be held. Belongs to `registry`.
KORVASchemaTypeI* readDocument(KORVAXMLDeserializer& deserializer, const std::string& xml,
                               const Registry& registry);

/// The root of a document, read as a value of this type. Belongs to `registry`.
KORVASchemaTypeI* readElement(const std::string& xml, KORVASchemaTypeI::ObjectType type,
                              const Registry& registry);

std::string writeEnvelope(KORVAPortTypeBinding& binding, KORVAMessageI& message);

/// Reads a request as a server that offers all port types.
Binding readRequest(KORVASOAPMessageIDeserializer& deserializer, const std::string& xml);

/// Reads a reply into the output message of `binding`.
void readReply(KORVASOAPMessageIDeserializer& deserializer, KORVAPortTypeBinding& binding,
               const std::string& xml);

/// Whether both are the same bytes; tells where they part.
testing::AssertionResult areSameBytes(const std::string& left, const std::string& right);

}  // namespace korva::test
