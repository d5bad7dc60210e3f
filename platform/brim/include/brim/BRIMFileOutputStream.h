/// Writes a file.
#pragma once

#include <brim/BRIMExport.h>
#include <brim/BRIMOutputStream.h>

#include <cstddef>
#include <cstdio>

/// Buffered by the C library.
class BRIM_EXPORT BRIMFileOutputStream final : public BRIMOutputStream {
public:
    enum Mode {
        eReplace,  ///< a file that exists is emptied first
        eAppend    ///< writes behind what a file holds already
    };

    /// Opens the file, or makes it. `path` is UTF-8 and must not be null.
    explicit BRIMFileOutputStream(const char* path, Mode mode = eReplace);

    /// Closes the file; a failure to write the rest is dropped.
    ~BRIMFileOutputStream() override;

    void write(const char* bytes, std::size_t length) override;
    void close() override;
    void flush() override;

private:
    std::FILE* m_file;
};
