/// An attribute of an element.
#pragma once

#include <zelidom/ZELIDOM_Node.h>

class ZELIDOM_EXPORT ZELIDOM_Attr : public ZELIDOM_Node {
public:
    constexpr ZELIDOM_Attr() noexcept = default;
    /// Null for a node that is no attribute.
    explicit ZELIDOM_Attr(const ZELIDOM_Node& node);

    /// The qualified name.
    ZELIDOM_String getName() const { return getNodeName(); }

    ZELIDOM_String getValue() const { return getNodeValue(); }
};
