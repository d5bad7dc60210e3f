#include "examples/live_call/SinkStream.h"

#include <brim/BRIMStreamError.h>
#include <zel/ZELAssert.h>
#include <zel/ZELThrow.h>

#include <algorithm>
#include <httplib.h>

namespace live_call {

namespace {

constexpr std::size_t chunkSize = 65536;

}  // namespace

void SinkStream::open(httplib::DataSink& sink) {
    m_sink = &sink;
    m_chunk.reserve(chunkSize);
}

void SinkStream::write(const char* bytes, std::size_t length) {
    while (length != 0) {
        const std::size_t piece = std::min(length, chunkSize - m_chunk.size());
        m_chunk.append(bytes, piece);
        bytes += piece;
        length -= piece;
        if (m_chunk.size() == chunkSize) send();
    }
}

void SinkStream::close() {
    if (m_sink == nullptr) return;
    // A chunk of no bytes would be the end.
    if (!m_chunk.empty()) send();
    m_sink->done();
    m_sink = nullptr;
}

void SinkStream::send() {
    ZEL_ASSERT(m_sink != NULL);
    if (!m_sink->write(m_chunk.data(), m_chunk.size()))
        ZEL_THROW(BRIMStreamError("The client doesn't take the answer."));
    m_chunk.clear();
}

}  // namespace live_call
