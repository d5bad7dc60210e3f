/// A document of Xerces-C's together with the memory that it is made of.
#pragma once

#include "platform/zelidom/DocumentMemory.h"

#include <zel/ZELReferenceCount.h>

#include <cstddef>

class BRIMInputStream;

XERCES_CPP_NAMESPACE_BEGIN
class DOMDocument;
XERCES_CPP_NAMESPACE_END

namespace zelidom {

/// Has no document until it is given one, once.
class OwnedDocument final : public ZELReferenceCount {
public:
    OwnedDocument() noexcept = default;
    OwnedDocument(const OwnedDocument&) = delete;
    OwnedDocument& operator=(const OwnedDocument&) = delete;
    ~OwnedDocument() override;

    /// @throws what Xerces-C throws
    xercesc::DOMDocument& create();

    /// @throws what Xerces-C and the stream throw, and what ZELIDOM_Document tells of
    xercesc::DOMDocument& parse(BRIMInputStream& stream, std::size_t maximumDepth);

private:
    DocumentMemory m_memory;
    xercesc::DOMDocument* m_document = nullptr;
};

}  // namespace zelidom
