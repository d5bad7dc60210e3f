// Refuses documents with a document type.
#pragma once

#include <xercesc/sax/HandlerBase.hpp>

namespace korva {

/// A DTDHandler that raises KORVAException 0xEA4EB50B where a document type declaration begins,
/// before any of it takes effect.
class NoDOCTYPEHandler final : public xercesc::HandlerBase {
public:
    void resetDocType() override;
};

}  // namespace korva
