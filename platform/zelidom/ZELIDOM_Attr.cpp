#include "zelidom/ZELIDOM_Attr.h"

ZELIDOM_Attr::ZELIDOM_Attr(const ZELIDOM_Node& node)
    : ZELIDOM_Node(!node.isNull() && node.getNodeType() == ATTRIBUTE_NODE ? node : ZELIDOM_Node()) {
}
