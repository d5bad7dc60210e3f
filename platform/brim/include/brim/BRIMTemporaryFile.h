/// A file without a name, for what is too large to be kept in memory.
#pragma once

#include <brim/BRIMExport.h>

#include <cstddef>

/// Grows at its end and is read anywhere. It stands in the folder for temporary files (`TMPDIR`, or
/// `/tmp`), is seen by no other process, and is gone with the object, also when the process is
/// killed. Failures raise `BRIMStreamError`.
class BRIM_EXPORT BRIMTemporaryFile {
public:
    /// Makes the file, empty.
    BRIMTemporaryFile();
    BRIMTemporaryFile(const BRIMTemporaryFile&) = delete;
    BRIMTemporaryFile& operator=(const BRIMTemporaryFile&) = delete;
    ~BRIMTemporaryFile();

    /// Writes behind what the file holds, without a buffer. After a failure it holds what it held
    /// before.
    void append(const char* bytes, std::size_t length);

    /// Reads up to `size` bytes from `offset` on, and returns how many: all of them, unless the
    /// file ends before.
    std::size_t read(unsigned long long offset, char* buffer, std::size_t size) const;

    /// In bytes.
    unsigned long long size() const noexcept { return m_size; }

private:
    int m_descriptor;
    unsigned long long m_size = 0;
};
