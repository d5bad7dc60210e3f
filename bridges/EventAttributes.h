/// The attributes of an element that is told of.
#pragma once

#include "bridges/FixedTexts.h"

#include <xercesc/sax2/Attributes.hpp>

#include <array>
#include <string>
#include <string_view>

namespace korva {

/// Is filled anew for each element; the texts live until then.
class EventAttributes final : public xercesc::Attributes {
public:
    struct Row {
        WideName name;
        const XMLCh* value;
    };

    EventAttributes();
    EventAttributes(const EventAttributes&) = delete;
    EventAttributes& operator=(const EventAttributes&) = delete;
    ~EventAttributes() override;

    void clear() { m_count = 0; }

    /// `value` must outlive the row.
    void add(const WideName& name, const XMLCh* value);

    /// The value is made of both pieces, which are in UTF-8.
    /// @throws ZELOutOfMemoryError no memory is left
    void add(const WideName& name, std::string_view value, std::string_view rest = {});

    const Row* begin() const { return m_rows.data(); }
    const Row* end() const { return m_rows.data() + m_count; }

    XMLSize_t getLength() const override { return m_count; }
    const XMLCh* getURI(XMLSize_t index) const override;
    const XMLCh* getLocalName(XMLSize_t index) const override;
    const XMLCh* getQName(XMLSize_t index) const override;
    const XMLCh* getType(XMLSize_t index) const override;
    const XMLCh* getValue(XMLSize_t index) const override;
    bool getIndex(const XMLCh* uri, const XMLCh* localName, XMLSize_t& index) const override;
    int getIndex(const XMLCh* uri, const XMLCh* localName) const override;
    bool getIndex(const XMLCh* qName, XMLSize_t& index) const override;
    int getIndex(const XMLCh* qName) const override;
    const XMLCh* getType(const XMLCh* uri, const XMLCh* localName) const override;
    const XMLCh* getType(const XMLCh* qName) const override;
    const XMLCh* getValue(const XMLCh* uri, const XMLCh* localName) const override;
    const XMLCh* getValue(const XMLCh* qName) const override;

private:
    /// The declarations, the two of a type, and a reference or nil.
    static constexpr XMLSize_t maxCount = Declarations::count + 3;

    std::array<Row, maxCount> m_rows{};
    std::array<std::u16string, maxCount> m_values;  ///< of those rows that do not point elsewhere
    XMLSize_t m_count = 0;
};

}  // namespace korva
