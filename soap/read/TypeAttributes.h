/// The attributes of an element that tell what it is.
#pragma once

#include "soap/read/DocumentReceiver.h"

#include <optional>
#include <string_view>

namespace korva {

/// The attributes that a reader looks at. The texts live as long as the element's event.
struct TypeAttributes {
    std::optional<std::string_view> type;       ///< `type` of the schema instance namespace
    std::optional<std::string_view> arrayType;  ///< `arrayType` of the SOAP encoding namespace
    std::string_view contentId;  ///< what stands behind "cid:" in `href`; empty if nothing does
    bool isNil = false;          ///< `nil` of the schema instance namespace is "true"

    explicit TypeAttributes(const Element& element);
};

}  // namespace korva
