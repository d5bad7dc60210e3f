/// What the readers of one document have in common.
#pragma once

#include "soap/read/TextStore.h"
#include "soap/read/TypeAttributes.h"
#include "soap/read/TypeNames.h"

#include <zel/ZELByteBuffer.h>

class KORVANamespaceMapping;
class KORVAObjectRegistryI;
class KORVA_AttachmentHandler;

namespace korva {

struct ReadingContext {
    ReadingContext(KORVANamespaceMapping* prefixes, KORVAObjectRegistryI* owner)
        : mapping(prefixes), registry(owner) {}

    KORVANamespaceMapping* mapping;                        ///< the prefixes in scope
    KORVAObjectRegistryI* registry;                        ///< owner of all that is read
    KORVA_AttachmentHandler* attachmentHandler = nullptr;  ///< null refuses references

    AttributeNamespaces attributeNamespaces;
    TypeNames types;
    TextStore texts;
    ZELByteBuffer text{ZELByteBuffer::eGrowGeometric, 512};  ///< of the current element so far
};

}  // namespace korva
