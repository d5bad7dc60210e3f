/// Short ways to and from the wire.
#pragma once

#include <brim/BRIMMemoryInputStream.h>
#include <korva/KORVAObjectRegistryFactory.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVAPortTypeBinding.h>
#include <korva/KORVAPortTypeI.h>
#include <korva/KORVA_AttachmentHandler.h>
#include <zel/ZELSmartPointer.h>

#include <string>
#include <string_view>
#include <vector>

class KORVAMessageI;
class KORVASchemaTypeI;

namespace korva::fuzz {

using Binding = ZELSmartPointer<KORVAPortTypeBinding>;
using Registry = ZELSmartPointer<KORVAObjectRegistryI>;

inline Registry makeRegistry() {
    return KORVAObjectRegistryFactory::getInstance().create();
}

/// Reads an envelope as a server does that offers everything. `attachments` may be null.
Binding readRequest(std::string_view envelope, KORVA_AttachmentHandler* attachments);

/// A call whose reply the envelope seems to be: of the operation whose element the envelope has; of
/// "run" if it has none.
Binding callFor(std::string_view envelope);

/// Reads an envelope as the reply to a call.
void readReply(std::string_view envelope, KORVAPortTypeBinding& call,
               KORVA_AttachmentHandler* attachments);

std::string written(KORVAPortTypeBinding& binding, KORVAMessageI& message);

/// Reads a document; null if its root's type is unknown. The object belongs to `registry`.
KORVASchemaTypeI* readDocument(std::string_view document, const Registry& registry);

/// The document that an object is written as.
std::string written(const KORVASchemaTypeI& object);

}  // namespace korva::fuzz
