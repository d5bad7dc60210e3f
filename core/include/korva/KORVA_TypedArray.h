/// The typed storage of the schema's arrays.
#pragma once

#include <korva/KORVA_ArrayObject.h>

#include <cstddef>
#include <iterator>
#include <string_view>
#include <type_traits>
#include <vector>

/// An array whose elements are kept as `Element`: a pointer to an object, a text, or a value.
template <class Element>
class KORVA_TypedArray : public KORVA_ArrayObject {
public:
    using iterator = typename std::vector<Element>::iterator;
    using const_iterator = typename std::vector<Element>::const_iterator;

    /// The element at the zero-based `i`.
    /// @throws std::out_of_range there is none
    Element at(std::size_t i) {
        check(i);
        return m_vector[i];
    }

    /// The slot of the first element.
    /// @throws std::out_of_range there is none
    Element& front() {
        check(0);
        return m_vector.front();
    }
    const Element& front() const {
        check(0);
        return m_vector.front();
    }

    /// The slot of the last element.
    /// @throws std::out_of_range there is none
    Element& back() {
        check(0);
        return m_vector.back();
    }
    const Element& back() const {
        check(0);
        return m_vector.back();
    }

    /// The slot of the element at the zero-based `i`.
    /// @throws std::out_of_range there is none
    Element& operator[](std::size_t i) {
        check(i);
        return m_vector[i];
    }
    const Element& operator[](std::size_t i) const {
        check(i);
        return m_vector[i];
    }

    iterator begin() { return m_vector.begin(); }
    iterator end() { return m_vector.end(); }
    const_iterator begin() const { return m_vector.begin(); }
    const_iterator end() const { return m_vector.end(); }

    /// Appends the pointer or value as it stands.
    void push_back(Element element) { m_vector.push_back(element); }
    /// The same; gives the new slot.
    Element& emplace_back(Element element) { return m_vector.emplace_back(element); }
    /// Puts the pointer or value in front of `position`; gives the iterator at it.
    iterator insert(const_iterator position, Element element) {
        return m_vector.insert(position, element);
    }
    /// Puts a range in front of `position`; gives the iterator at its first element.
    template <std::input_iterator Input>
    iterator insert(const_iterator position, Input first, Input last) {
        return m_vector.insert(position, first, last);
    }
    void reserve(std::size_t count) { m_vector.reserve(count); }
    /// Removes one slot without freeing the element; gives the iterator behind it.
    iterator erase(iterator position) { return m_vector.erase(position); }
    /// Removes all slots, keeping the capacity and the elements.
    void clear() { m_vector.clear(); }
    bool empty() const { return m_vector.empty(); }

    std::size_t size() const override { return m_vector.size(); }

protected:
    KORVA_TypedArray() = default;
    ~KORVA_TypedArray() override = default;

    void check(std::size_t i) const {
        if (i >= m_vector.size()) this->throwInvalidSubscript();
    }

    std::vector<Element> m_vector;

private:
    void resizeSlots(std::size_t count) final { m_vector.resize(count); }
};

/// An array of pointers to objects of the class `X`.
template <class X>
class KORVA_ObjectArray : public KORVA_TypedArray<X*> {
public:
    using KORVA_TypedArray<X*>::at;
    using KORVA_TypedArray<X*>::emplace_back;
    /// Appends a new object of the class `Y`, an X or one derived from it, which is registered in
    /// `registry`; gives the object. After a failure the array is as it was.
    /// @throws ZELOutOfMemoryError no memory is left
    template <class Y = X>
    Y* emplace_back(KORVAObjectRegistryI& registry) {
        static_assert(std::is_base_of_v<X, Y>, "the array holds objects of another class");
        const auto create = []() -> KORVASchemaTypeI* { return new Y; };
        return static_cast<Y*>(this->appendNew(create, registry));
    }

    /// The element at the zero-based `i`.
    /// @throws std::out_of_range there is none
    const X* at(std::size_t i) const {
        this->check(i);
        return this->m_vector[i];
    }

protected:
    KORVA_ObjectArray() = default;
    ~KORVA_ObjectArray() override = default;

private:
    // An X and its KORVASchemaTypeI have the same address, so X need not be complete here.
    void* slot(std::size_t position) const final { return this->m_vector[position]; }
    void setSlot(std::size_t position, void* element) final {
        this->m_vector[position] = static_cast<X*>(element);
    }
};

/// An array of texts, which belong to a registry or to the caller.
class KORVA_EXPORT KORVA_TextArray : public KORVA_TypedArray<const char*> {
public:
    using KORVA_TypedArray<const char*>::at;
    using KORVA_TypedArray<const char*>::emplace_back;
    /// Appends a copy of `text`, which is registered in `registry`; gives the copy. After a failure
    /// the array is as it was.
    /// @throws ZELOutOfMemoryError no memory is left
    const char* emplace_back(std::string_view text, KORVAObjectRegistryI& registry);

    /// The text at the zero-based `i`.
    /// @throws std::out_of_range there is none
    const char* at(std::size_t i) const {
        check(i);
        return m_vector[i];
    }

protected:
    KORVA_TextArray() = default;
    ~KORVA_TextArray() override;

private:
    void* slot(std::size_t position) const final;
    void setSlot(std::size_t position, void* element) final;
};

/// A boolean that has an address of its own inside an array.
struct KORVA_Boolean {
    bool value = false;
    KORVA_Boolean() = default;
    KORVA_Boolean(bool v) : value(v) {}
    operator bool() const { return value; }
};

/// An array of values.
template <class Value, class Stored>
class KORVA_ValueArray : public KORVA_TypedArray<Stored> {
public:
    /// The value at the zero-based `i`.
    /// @throws std::out_of_range there is none
    Value at(std::size_t i) const {
        this->check(i);
        return this->m_vector[i];
    }

protected:
    KORVA_ValueArray() = default;
    ~KORVA_ValueArray() override = default;

private:
    void* slot(std::size_t position) const final {
        return const_cast<Stored*>(&this->m_vector[position]);
    }
    void setSlot(std::size_t position, void* element) final {
        this->m_vector[position] = *static_cast<const Value*>(element);
    }
};

using KORVA_IntArrayBase = KORVA_ValueArray<int, int>;
using KORVA_BooleanArrayBase = KORVA_ValueArray<bool, KORVA_Boolean>;
