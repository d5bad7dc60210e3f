#include "soap/read/DocumentBytes.h"

#include "soap/read/Prolog.h"

#include <brim/BRIMInputStream.h>

#include <algorithm>
#include <cstring>

namespace korva {

DocumentBytes::Form DocumentBytes::look() {
    m_startSize = readStream(m_start.data(), m_start.size());
    m_ahead = start();
    Prolog prolog(m_ahead, m_startSize < m_start.size());
    if (!prolog.isUtf8()) return Form::Other;
    return prolog.lacksDocumentType() ? Form::Plain : Form::Utf8;
}

std::size_t DocumentBytes::read(char* buffer, std::size_t size) {
    const std::size_t count = std::min(size, m_ahead.size());
    std::memcpy(buffer, m_ahead.data(), count);
    m_ahead.remove_prefix(count);
    return count + readStream(buffer + count, size - count);
}

std::size_t DocumentBytes::readStream(char* buffer, std::size_t size) {
    std::size_t length = 0;
    while (length != size) {
        const long long count = m_stream.read(buffer + length, size - length);
        if (count <= 0) break;
        length += static_cast<std::size_t>(count);
    }
    return length;
}

}  // namespace korva
