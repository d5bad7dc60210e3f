/// The typed storage of the schema's arrays.
#pragma once

#include <korva/KORVA_ArrayObject.h>

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

    iterator begin() { return m_vector.begin(); }
    iterator end() { return m_vector.end(); }
    const_iterator begin() const { return m_vector.begin(); }
    const_iterator end() const { return m_vector.end(); }

    /// Appends the pointer or value as it stands.
    void push_back(Element element) { m_vector.push_back(element); }
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
