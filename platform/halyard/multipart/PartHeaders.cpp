#include "platform/halyard/multipart/PartHeaders.h"

#include "platform/halyard/multipart/Failure.h"
#include "platform/halyard/multipart/FieldValue.h"

#include <zel/ZELAscii.h>

namespace halyard {

void PartHeaders::clear() noexcept {
    m_text.clear();
    m_fields.clear();
}

void PartHeaders::addLine(std::string_view line) {
    if (line.find('\0') != std::string_view::npos)
        refuse("a header has a NUL character", ZEL_LOCATION, "halyard::PartHeaders::addLine");
    if (!m_fields.empty() && (line.front() == ' ' || line.front() == '\t')) {
        const std::string_view more = trimmed(line);
        if (more.empty()) return;
        // A value that begins behind a break has no blank before it.
        m_text.pop_back();
        if (m_text.size() != m_fields.back().value) m_text += ' ';
        m_text += more;
        m_text += '\0';
        return;
    }
    const std::size_t colon = line.find(':');
    const std::string_view name = trimmed(line.substr(0, colon));
    if (colon == std::string_view::npos || name.empty())
        refuse("a header has no name and colon", ZEL_LOCATION, "halyard::PartHeaders::addLine");
    const std::size_t at = m_text.size();
    m_text += name;
    m_text += '\0';
    m_fields.push_back({at, m_text.size()});
    m_text += trimmed(line.substr(colon + 1));
    m_text += '\0';
}

const char* PartHeaders::find(std::string_view name) const noexcept {
    for (const Field& field : m_fields)
        if (zel::equalIgnoringCase(m_text.c_str() + field.name, name))
            return m_text.c_str() + field.value;
    return nullptr;
}

const char* PartHeaders::findOnly(std::string_view name) const {
    const char* value = nullptr;
    for (const Field& field : m_fields) {
        if (!zel::equalIgnoringCase(m_text.c_str() + field.name, name)) continue;
        if (value != nullptr)
            refuse("a part has the header " + std::string(name) + " twice", ZEL_LOCATION,
                   "halyard::PartHeaders::findOnly");
        value = m_text.c_str() + field.value;
    }
    return value;
}

}  // namespace halyard
