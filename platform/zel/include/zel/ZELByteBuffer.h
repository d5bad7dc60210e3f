/// A growing, always NUL-terminated array of bytes.
#pragma once

#include <zel/ZELExport.h>

#include <cstddef>
#include <cstring>

/// Allocates nothing until the first byte arrives. Running out of memory throws
/// `ZELOutOfMemoryError` and leaves the buffer as it was.
class ZEL_EXPORT ZELByteBuffer {
public:
    /// How the capacity grows once the first allocation is full.
    enum Growth : int {
        eGrowExact = 0,     ///< to what is needed: least memory, for few appends
        eGrowGeometric = 1  ///< by half at least: constant cost for each byte
    };

    /// `growth` is a `Growth`. `size` is how many bytes the first allocation has, with the NUL,
    /// unless the first append needs more. `options` is reserved and 0.
    explicit ZELByteBuffer(int growth = eGrowGeometric, std::size_t size = 128,
                           unsigned options = 0) noexcept;

    /// Copies the bytes, in an allocation that just holds them.
    ZELByteBuffer(const ZELByteBuffer& other);
    ZELByteBuffer(ZELByteBuffer&& other) noexcept;
    ZELByteBuffer& operator=(const ZELByteBuffer& other);
    ZELByteBuffer& operator=(ZELByteBuffer&& other) noexcept;
    virtual ~ZELByteBuffer();

    /// `bytes` may hold NULs, and may be null if `length` is 0. It must not lie in this buffer.
    void appendChars(const char* bytes, std::size_t length) {
        if (length == 0) return;
        char* end = extend(length);
        std::memcpy(end, bytes, length);
        commit(length);
    }

    void appendChar(char byte) {
        *extend(1) = byte;
        commit(1);
    }

    /// The bytes with a NUL behind them; never null. Valid until the buffer is changed or ended.
    const char* str() const noexcept { return m_pBuffer ? m_pBuffer : ""; }

    /// How many bytes there are, without the NUL.
    std::size_t pcount() const noexcept { return m_length; }

    /// How many bytes fit without another allocation, not counting the NUL.
    std::size_t capacity() const noexcept { return m_capacity; }

    /// Forgets the bytes and keeps the allocation.
    void reset() noexcept {
        m_length = 0;
        if (m_pBuffer) *m_pBuffer = '\0';
    }

    /// Makes room for `length` bytes in all, and for no more.
    void reserve(std::size_t length);

    /// Gives back what is allocated beyond the bytes and their NUL, or all of it if there are no
    /// bytes. Does nothing if there is no memory for the smaller allocation.
    void shrinkToFit() noexcept;

    /// Gives the bytes, with their NUL, to the caller, who frees them with `delete[]`, and forgets
    /// them. Null if nothing was allocated.
    char* release() noexcept;

    /// Cuts behind the first `length` bytes; does nothing if there are no more than that.
    void truncate(std::size_t length) noexcept;

    /// Removes the first `count` bytes, or all if there are fewer.
    void chop(std::size_t count) noexcept;

    /// Room for `length` more bytes at the end, to be written directly and then made part of the
    /// contents with `commit`; in between `str()` has no NUL at its end. Never null unless `length`
    /// is 0.
    char* extend(std::size_t length) {
        if (length > m_capacity - m_length) grow(length);
        return m_pBuffer + m_length;
    }

    /// Takes in the first `length` bytes of what `extend` gave, no more than were asked for there,
    /// and ends them with a NUL. 0 undoes an `extend`.
    void commit(std::size_t length) noexcept {
        m_length += length;
        if (m_pBuffer) m_pBuffer[m_length] = '\0';
    }

protected:
    char* m_pBuffer = nullptr;   ///< `m_capacity` + 1 bytes, or null before the first byte
    std::size_t m_length = 0;    ///< without the NUL that always follows
    std::size_t m_capacity = 0;  ///< without room for the NUL

private:
    void grow(std::size_t more);
    void reallocate(std::size_t capacity);

    unsigned m_firstSize;
    int m_growth;
};
