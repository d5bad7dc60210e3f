/// Owns one object, for the members of public classes.
#pragma once

#include <cstddef>
#include <utility>

/// What `std::unique_ptr` does for a member, without <memory>, which would be most of what a public
/// header costs its includers. `T` may be incomplete where no constructor, assignment or destructor
/// of its holder is defined.
template <class T>
class ZELOwner {
public:
    constexpr ZELOwner() noexcept = default;
    explicit ZELOwner(T* object) noexcept : m_object(object) {}
    ZELOwner(ZELOwner&& other) noexcept : m_object(other.release()) {}
    ZELOwner& operator=(ZELOwner&& other) noexcept {
        reset(other.release());
        return *this;
    }
    ~ZELOwner() { reset(); }

    /// Deletes what is owned, and owns `object` from now on.
    void reset(T* object = nullptr) noexcept {
        static_assert(sizeof(T) > 0, "a complete type is needed to delete");
        delete std::exchange(m_object, object);
    }

    /// Whoever takes what is given owns it.
    [[nodiscard]] T* release() noexcept { return std::exchange(m_object, nullptr); }

    T* get() const noexcept { return m_object; }
    T* operator->() const noexcept { return m_object; }
    T& operator*() const noexcept { return *m_object; }
    explicit operator bool() const noexcept { return m_object != nullptr; }

    friend bool operator==(const ZELOwner& left, std::nullptr_t) noexcept { return !left; }

private:
    T* m_object = nullptr;
};
