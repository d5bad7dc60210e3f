#include "brim/BRIMGZIPInputStream.h"

#include "platform/brim/ZlibMemory.h"

#include <brim/BRIMStreamError.h>
#include <zel/ZELFrame.h>
#include <zel/ZELOutOfMemoryError.h>
#include <zel/ZELThrow.h>

#include <zlib.h>

#include <algorithm>
#include <limits>
#include <new>
#include <string>

struct BRIMGZIPInputStream::Inflater {
    Inflater() {
        zip.zalloc = brim::allocateForZlib;
        zip.zfree = brim::releaseForZlib;
        // The largest window; 16 stands for gzip's header and trailer, and for no other form.
        if (inflateInit2(&zip, MAX_WBITS + 16) != Z_OK) throw std::bad_alloc();
    }
    Inflater(const Inflater&) = delete;
    Inflater& operator=(const Inflater&) = delete;
    ~Inflater() { inflateEnd(&zip); }

    /// Gets more of the wrapped stream; false at its end.
    bool refill(BRIMInputStream& stream) {
        const long long count = stream.read(buffer, sizeof buffer);
        if (count <= 0) return false;
        zip.next_in = reinterpret_cast<Bytef*>(buffer);
        zip.avail_in = static_cast<uInt>(count);
        given += static_cast<unsigned long long>(count);
        return true;
    }

    z_stream zip{};
    bool inMember = true;  ///< a stream without any member is cut short
    const char* failure = nullptr;
    unsigned long long given = 0;     ///< by the wrapped stream, `zip.avail_in` not yet looked at
    unsigned long long expanded = 0;  ///< and handed out
    char buffer[16384];
};

BRIMGZIPInputStream::BRIMGZIPInputStream(BRIMInputStream& stream) : m_stream(stream) {
    ZEL_TRY {
        m_inflater = new Inflater;
    }
    ZEL_CATCH("BRIMGZIPInputStream::BRIMGZIPInputStream");
}

BRIMGZIPInputStream::~BRIMGZIPInputStream() {
    delete m_inflater;
}

long long BRIMGZIPInputStream::read(char* buffer, std::size_t size) {
    z_stream& zip = m_inflater->zip;
    const auto room =
        static_cast<uInt>(std::min<std::size_t>(size, std::numeric_limits<uInt>::max()));
    zip.next_out = reinterpret_cast<Bytef*>(buffer);
    zip.avail_out = room;
    while (zip.avail_out != 0) {
        if (m_inflater->failure) {
            // What was expanded before the failure is given first.
            if (zip.avail_out != room) break;
            ZEL_THROW(BRIMStreamError(m_inflater->failure), "BRIMGZIPInputStream::read");
        }
        if (zip.avail_in == 0) {
            // Never wait for more while there is something to give.
            if (zip.avail_out != room) break;
            if (!m_inflater->refill(m_stream)) {
                if (!m_inflater->inMember) break;
                m_inflater->failure = "gzip: the data is cut short";
                continue;
            }
        }
        if (!m_inflater->inMember) {
            inflateReset(&zip);
            m_inflater->inMember = true;
        }
        switch (inflate(&zip, Z_NO_FLUSH)) {
            case Z_OK:
            case Z_BUF_ERROR: break;
            case Z_STREAM_END: m_inflater->inMember = false; break;
            case Z_MEM_ERROR: ZEL_THROW(ZELOutOfMemoryError(), "BRIMGZIPInputStream::read");
            default:
                m_inflater->failure = "gzip: the data is damaged, or followed by something else";
                break;
        }
    }
    m_inflater->expanded += room - zip.avail_out;
    return room - zip.avail_out;
}

unsigned long long BRIMGZIPInputStream::compressedBytes() const noexcept {
    return m_inflater->given - m_inflater->zip.avail_in;
}

unsigned long long BRIMGZIPInputStream::expandedBytes() const noexcept {
    return m_inflater->expanded;
}

bool BRIMGZIPInputStream::expandsBeyond(unsigned long long ratio) const noexcept {
    return expandedBytes() > smallestForRatio && expandedBytes() / ratio > compressedBytes();
}
