/// What a service offers, operation by operation.
#pragma once

#include <korva/KORVAMessageFactory.h>

#include <cstddef>
#include <iterator>
#include <span>

class KORVAPortTypeBinding;
class KORVA_PortType;

namespace korva {
struct OperationRow;
}

/// One operation of a port type, in one of its versions: a row of constant data, to be copied at
/// will.
class KORVA_EXPORT KORVA_Operation {
public:
    /// Parameters in declared order.
    using Parameters = std::span<const KORVAMessageFactory::KORVAParamDescriptor>;

    /// @param row of the table of `portType`
    KORVA_Operation(const KORVA_PortType& portType, const korva::OperationRow& row)
        : m_portType(&portType), m_row(&row) {}

    /// A literal.
    const char* getName() const;
    /// From 1, counted among the operations of this port type that have this name.
    int getVersion() const;
    const KORVA_PortType& getPortType() const { return *m_portType; }
    /// The URI of the operation element's namespace, a literal.
    const char* getNamespace() const;
    /// A literal.
    const char* getSOAPAction() const;
    KORVAMessageI::MessageType getRequestType() const;
    KORVAMessageI::MessageType getReplyType() const;
    /// Of the request.
    Parameters getParameters() const;
    Parameters getReplyParameters() const;

    /// Binds new messages, as KORVAPortTypeI::createPortTypeBinding does.
    /// @throws ZELOutOfMemoryError no memory is left
    KORVAPortTypeBinding* createBinding() const;

    friend bool operator==(const KORVA_Operation&, const KORVA_Operation&) = default;

private:
    const KORVA_PortType* m_portType;
    const korva::OperationRow* m_row;
};

/// The operations of a port type, ascending by name, versions in the schema's order.
class KORVA_EXPORT KORVA_Operations {
public:
    class iterator {
    public:
        using iterator_category = std::input_iterator_tag;
        using iterator_concept = std::forward_iterator_tag;
        using value_type = KORVA_Operation;
        using difference_type = std::ptrdiff_t;
        using pointer = void;
        using reference = KORVA_Operation;

        iterator() = default;
        iterator(const KORVA_PortType& portType, std::size_t position)
            : m_portType(&portType), m_position(position) {}

        KORVA_Operation operator*() const { return at(*m_portType, m_position); }
        iterator& operator++() {
            ++m_position;
            return *this;
        }
        iterator operator++(int) {
            const iterator old = *this;
            ++m_position;
            return old;
        }
        friend bool operator==(const iterator&, const iterator&) = default;

    private:
        const KORVA_PortType* m_portType = nullptr;
        std::size_t m_position = 0;
    };

    explicit KORVA_Operations(const KORVA_PortType& portType) : m_portType(&portType) {}

    iterator begin() const { return {*m_portType, 0}; }
    iterator end() const { return {*m_portType, size()}; }
    std::size_t size() const;

private:
    static KORVA_Operation at(const KORVA_PortType& portType, std::size_t position);

    const KORVA_PortType* m_portType;
};
