/// Reads a file.
#pragma once

#include <brim/BRIMExport.h>
#include <brim/BRIMInputStream.h>

#include <cstddef>
#include <cstdio>

class BRIM_EXPORT BRIMFileInputStream final : public BRIMInputStream {
public:
    /// Opens the file. `path` is UTF-8 and must not be null.
    explicit BRIMFileInputStream(const char* path);
    ~BRIMFileInputStream() override;

    long long read(char* buffer, std::size_t size) override;

private:
    std::FILE* m_file;
};
