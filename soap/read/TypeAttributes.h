// The attributes of an element that tell what it is.
#pragma once

#include <xercesc/util/XercesDefs.hpp>

XERCES_CPP_NAMESPACE_BEGIN
class Attributes;
XERCES_CPP_NAMESPACE_END

namespace korva {

/// The attributes that a reader looks at. The texts are the parser's and live as long as its event.
struct TypeAttributes {
    const XMLCh* type = nullptr;       ///< `type` of the schema instance namespace, or null
    const XMLCh* arrayType = nullptr;  ///< `arrayType` of the SOAP encoding namespace, or null
    const XMLCh* contentId = nullptr;  ///< what stands behind "cid:" in `href`, or null
    bool isNil = false;                ///< `nil` of the schema instance namespace is "true"

    explicit TypeAttributes(const xercesc::Attributes& attributes);
};

}  // namespace korva
