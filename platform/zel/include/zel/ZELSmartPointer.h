/// Holds a counted reference to an object.
#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>

/// `T` derives from `ZELThreadUnsafeReferenceCount`. One pointer, which may be null; each smart
/// pointer that isn't null holds one reference.
template <class T>
class ZELSmartPointer {
public:
    constexpr ZELSmartPointer() noexcept = default;
    constexpr ZELSmartPointer(std::nullptr_t) noexcept {}

    ZELSmartPointer(T* target) : m_target(target) { acquire(); }

    ZELSmartPointer(const ZELSmartPointer& other) : m_target(other.m_target) { acquire(); }
    ZELSmartPointer(ZELSmartPointer&& other) noexcept
        : m_target(std::exchange(other.m_target, nullptr)) {}

    template <class U>
    requires std::is_convertible_v<U*, T*> ZELSmartPointer(const ZELSmartPointer<U>& other)
        : m_target(other.get()) {
        acquire();
    }

    ~ZELSmartPointer() {
        if (m_target) m_target->removeReference();
    }

    ZELSmartPointer& operator=(ZELSmartPointer other) noexcept {
        std::swap(m_target, other.m_target);
        return *this;
    }

    T* get() const noexcept { return m_target; }
    T* operator->() const noexcept { return m_target; }
    T& operator*() const noexcept { return *m_target; }
    explicit operator bool() const noexcept { return m_target != nullptr; }

    friend bool operator==(const ZELSmartPointer& left, const ZELSmartPointer& right) noexcept {
        return left.m_target == right.m_target;
    }
    friend bool operator==(const ZELSmartPointer& left, const T* right) noexcept {
        return left.m_target == right;
    }
    friend bool operator==(const ZELSmartPointer& left, std::nullptr_t) noexcept {
        return left.m_target == nullptr;
    }

private:
    void acquire() {
        if (m_target) m_target->addReference();
    }

    T* m_target = nullptr;
};
