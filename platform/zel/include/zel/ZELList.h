/// A read-only looking sequence, in which exceptions hand out what they carry.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

/// Elements in the order in which they came. A reader uses `begin`, `end` and `size`.
template <class T>
class ZELList {
public:
    using value_type = T;
    using const_iterator = typename std::vector<T>::const_iterator;
    using iterator = const_iterator;

    const_iterator begin() const noexcept { return m_items.begin(); }
    const_iterator end() const noexcept { return m_items.end(); }
    std::size_t size() const noexcept { return m_items.size(); }
    bool empty() const noexcept { return m_items.empty(); }

    /// `index` must be below `size()`.
    const T& operator[](std::size_t index) const noexcept { return m_items[index]; }

    /// @throws std::bad_alloc no memory is left; the list is as it was
    void append(T item) { m_items.push_back(std::move(item)); }

    void clear() noexcept { m_items.clear(); }

private:
    std::vector<T> m_items;
};
