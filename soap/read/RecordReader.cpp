#include "soap/read/RecordReader.h"

#include <korva/KORVANamespaceMapping.h>

namespace korva {

RecordReader::RecordReader(ReadingContext& context, const ElementRecord& record)
    : m_context(context), m_record(record), m_place(context.findings.place) {
    context.findings.place = this;
}

RecordReader::~RecordReader() {
    // A failure leaves some open.
    while (!m_prefixes.empty())
        endPrefix(m_prefixes.back());
    m_context.findings.place = m_place;
}

void RecordReader::read(ObjectType declared) {
    m_declared = declared;
    m_record.replay(*this);
}

void RecordReader::startPrefix(const char* prefix, const char* uri) {
    m_prefixes.push_back(prefix);
    try {
        m_context.mapping->addBorrowed(prefix, uri);
    } catch (...) {
        m_prefixes.pop_back();
        throw;
    }
}

void RecordReader::endPrefix(const char* prefix) {
    m_context.mapping->remove(prefix);
    m_prefixes.pop_back();
}

void RecordReader::startElement(const Element& element) {
    if (m_depth++ == 0)
        m_value.startRoot(element, KORVASchemaTypeI::e_Unknown, m_declared);
    else
        m_value.startElement(element);
    if (m_context.references != nullptr) m_context.references->weigh(1);
}

void RecordReader::text(std::string_view piece) {
    if (m_context.references != nullptr) m_context.references->weigh(piece.size());
    m_value.text(piece);
}

void RecordReader::endElement() {
    if (--m_depth != 0) {
        m_value.endElement();
        return;
    }
    m_result = m_value.value();
    m_type = m_value.type();
    m_value.endRoot();
}

}  // namespace korva
