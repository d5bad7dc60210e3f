#include "brim/BRIMGZIPOutputStream.h"

#include "platform/brim/ZlibMemory.h"

#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

#include <zlib.h>

#include <algorithm>
#include <limits>
#include <new>

struct BRIMGZIPOutputStream::Deflater {
    explicit Deflater(int level) {
        zip.zalloc = brim::allocateForZlib;
        zip.zfree = brim::releaseForZlib;
        // The largest window; 16 stands for gzip's header and trailer. 8 is zlib's default for
        // memory.
        if (deflateInit2(&zip, level >= 0 && level <= 9 ? level : Z_DEFAULT_COMPRESSION, Z_DEFLATED,
                         MAX_WBITS + 16, 8, Z_DEFAULT_STRATEGY) != Z_OK)
            throw std::bad_alloc();
    }
    Deflater(const Deflater&) = delete;
    Deflater& operator=(const Deflater&) = delete;
    ~Deflater() { deflateEnd(&zip); }

    z_stream zip{};
    char buffer[16384];
};

BRIMGZIPOutputStream::BRIMGZIPOutputStream(BRIMOutputStream& stream, int level) : m_stream(stream) {
    ZEL_TRY {
        m_deflater = new Deflater(level);
    }
    ZEL_CATCH("BRIMGZIPOutputStream::BRIMGZIPOutputStream");
}

BRIMGZIPOutputStream::~BRIMGZIPOutputStream() {
    delete m_deflater;
}

void BRIMGZIPOutputStream::write(const char* bytes, std::size_t length) {
    ZEL_ASSERT(!m_closed);
    z_stream& zip = m_deflater->zip;
    while (length != 0) {
        const auto step =
            static_cast<uInt>(std::min<std::size_t>(length, std::numeric_limits<uInt>::max()));
        // zlib only reads what its older interface doesn't call constant.
        zip.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes));
        zip.avail_in = step;
        deflate(Z_NO_FLUSH);
        bytes += step;
        length -= step;
    }
}

void BRIMGZIPOutputStream::close() {
    if (m_closed) return;
    m_closed = true;
    deflate(Z_FINISH);
}

void BRIMGZIPOutputStream::flush() {
    if (!m_closed) deflate(Z_SYNC_FLUSH);
    m_stream.flush();
}

/// Takes in all of the input, and gives out what comes of it in this mode of zlib's.
void BRIMGZIPOutputStream::deflate(int mode) {
    z_stream& zip = m_deflater->zip;
    do {
        zip.next_out = reinterpret_cast<Bytef*>(m_deflater->buffer);
        zip.avail_out = sizeof m_deflater->buffer;
        ::deflate(&zip, mode);
        const std::size_t count = sizeof m_deflater->buffer - zip.avail_out;
        if (count != 0) m_stream.write(m_deflater->buffer, count);
    } while (zip.avail_out == 0);
}
