/// What the readers of one document have in common.
#pragma once

#include "soap/read/Findings.h"
#include "soap/read/TextStore.h"
#include "soap/read/TypeAttributes.h"
#include "soap/read/TypeNames.h"

#include <zel/ZELByteBuffer.h>

class KORVANamespaceMapping;
class KORVAObjectRegistryI;
class KORVA_AttachmentHandler;

namespace korva {

class References;

struct ReadingContext {
    ReadingContext(KORVANamespaceMapping* prefixes, KORVAObjectRegistryI* owner)
        : mapping(prefixes), registry(owner) {}

    KORVANamespaceMapping* mapping;                        ///< the prefixes in scope
    KORVAObjectRegistryI* registry;                        ///< owner of all that is read
    KORVA_AttachmentHandler* attachmentHandler = nullptr;  ///< null refuses references
    Findings findings;
    References* references = nullptr;  ///< between elements; null where they are not followed

    AttributeNamespaces attributeNamespaces;
    TypeNames types;
    TextStore texts;
    ZELByteBuffer text{ZELByteBuffer::eGrowGeometric, 512};  ///< of the current element so far
};

}  // namespace korva
