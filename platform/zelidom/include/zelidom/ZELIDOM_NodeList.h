/// The children of a node.
#pragma once

#include <zelidom/ZELIDOM_Node.h>

#include <cstddef>

XERCES_CPP_NAMESPACE_BEGIN
class DOMNodeList;
XERCES_CPP_NAMESPACE_END

/// A handle by value, as a node is. The null list is empty.
class ZELIDOM_EXPORT ZELIDOM_NodeList {
public:
    constexpr ZELIDOM_NodeList() noexcept : m_list(nullptr) {}
    constexpr explicit ZELIDOM_NodeList(xercesc::DOMNodeList* list) noexcept : m_list(list) {}

    constexpr bool isNull() const noexcept { return m_list == nullptr; }

    /// Counts.
    std::size_t getLength() const;

    /// Counts up to `index`, from 0; null beyond the end.
    ZELIDOM_Node item(std::size_t index) const;

private:
    xercesc::DOMNodeList* m_list;
};
