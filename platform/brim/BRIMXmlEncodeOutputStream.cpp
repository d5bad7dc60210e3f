#include "brim/BRIMXmlEncodeOutputStream.h"

#include "platform/brim/XmlEncoding.h"

BRIMXmlEncodeOutputStream::~BRIMXmlEncodeOutputStream() = default;

void BRIMXmlEncodeOutputStream::write(const char* bytes, std::size_t length) {
    brim::xml::NoInspector inspector;
    brim::xml::transfer<brim::xml::Markup::Encoded>(m_stream, bytes, length, inspector);
}

void BRIMXmlEncodeOutputStream::flush() {
    m_stream.flush();
}
