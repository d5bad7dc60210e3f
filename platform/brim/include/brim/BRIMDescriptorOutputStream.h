/// Writes to a file, pipe or socket that the caller opened.
#pragma once

#include <brim/BRIMExport.h>
#include <brim/BRIMOutputStream.h>

#include <cstddef>

/// Collects small writes and passes them on by thousands of bytes, so whoever waits for an answer
/// calls `flush` first. The descriptor must be a blocking one.
class BRIM_EXPORT BRIMDescriptorOutputStream final : public BRIMOutputStream {
public:
    /// Who closes the descriptor.
    enum Ownership {
        eBorrowed,  ///< the caller, after the stream has ended
        eOwned      ///< the stream, in `close` or in its destructor
    };

    explicit BRIMDescriptorOutputStream(int descriptor, Ownership ownership = eBorrowed) noexcept;

    /// As `close`; a failure is dropped.
    ~BRIMDescriptorOutputStream() override;

    void write(const char* bytes, std::size_t length) override;
    void close() override;
    void flush() override;

private:
    int m_descriptor;
    Ownership m_ownership;
    std::size_t m_length = 0;
    char m_buffer[8192];
};
