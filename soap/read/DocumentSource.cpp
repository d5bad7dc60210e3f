#include "soap/read/DocumentSource.h"

#include "soap/read/ParserMemory.h"
#include "soap/read/ReadGuard.h"

#include <brim/BRIMInputStream.h>

#include <xercesc/util/BinInputStream.hpp>

#include <algorithm>
#include <cstring>
#include <string_view>

namespace korva {

namespace {

constexpr std::string_view whiteSpace = " \t\r\n";

/// Whether an XML declaration, given without its "<?xml" and "?>", leaves the encoding at UTF-8.
bool isUtf8(std::string_view declaration) {
    const std::size_t name = declaration.find("encoding");
    if (name == std::string_view::npos) return true;
    declaration.remove_prefix(name);
    const std::size_t quote = declaration.find_first_of("\"'");
    if (quote == std::string_view::npos) return false;
    const std::string_view encoding = declaration.substr(quote + 1, 5);
    return encoding == "UTF-8" || encoding == "utf-8";
}

/// Removes white space and everything up to the end of `mark`; false if there is no `mark`.
bool skipPast(std::string_view& text, std::string_view mark) {
    const std::size_t at = text.find(mark);
    if (at == std::string_view::npos) return false;
    text.remove_prefix(at + mark.size());
    return true;
}

}  // namespace

/// First the bytes that were looked at, then those of the stream.
class DocumentSource::Bytes final : public xercesc::BinInputStream {
public:
    explicit Bytes(const DocumentSource& source) : m_source(source) {}

    XMLFilePos curPos() const override { return m_position; }

    XMLSize_t readBytes(XMLByte* buffer, XMLSize_t size) override {
        std::size_t count = 0;
        if (m_position < m_source.m_startSize) {
            const auto position = static_cast<std::size_t>(m_position);
            count = std::min<std::size_t>(size, m_source.m_startSize - position);
            std::memcpy(buffer, m_source.m_start.data() + position, count);
        } else {
            count = m_source.readStream(reinterpret_cast<char*>(buffer), size);
        }
        m_position += count;
        return count;
    }

    const XMLCh* getContentType() const override { return nullptr; }

private:
    const DocumentSource& m_source;
    XMLFilePos m_position = 0;
};

DocumentSource::DocumentSource(BRIMInputStream& stream, ReadGuard& guard, ParserMemory& memory)
    : InputSource(&memory), m_stream(stream), m_guard(guard) {}

xercesc::BinInputStream* DocumentSource::makeStream() const {
    return new (getMemoryManager()) Bytes(*this);
}

std::size_t DocumentSource::readStream(char* buffer, std::size_t size) const {
    try {
        const long long count = m_stream.read(buffer, size);
        return count > 0 ? static_cast<std::size_t>(count) : 0;
    } catch (...) {
        m_guard.notePosition();
        throw;
    }
}

bool DocumentSource::lacksDoctype() {
    m_startSize = readStream(m_start.data(), m_start.size());
    std::string_view text(m_start.data(), m_startSize);
    if (text.substr(0, 3) == "\xEF\xBB\xBF") text.remove_prefix(3);
    if (text.substr(0, 5) == "<?xml") {
        const std::string_view declaration = text.substr(0, text.find("?>"));
        if (!skipPast(text, "?>") || !isUtf8(declaration)) return false;
    }
    for (;;) {
        text.remove_prefix(std::min(text.find_first_not_of(whiteSpace), text.size()));
        if (text.size() < 4 || text[0] != '<') return false;
        if (text[1] == '?') {
            if (!skipPast(text, "?>")) return false;
        } else if (text.substr(0, 4) == "<!--") {
            if (!skipPast(text, "-->")) return false;
        } else {
            // The root, unless it is a document type, or no UTF-8.
            const char c = text[1];
            return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
        }
    }
}

}  // namespace korva
