/// Reads from a file, pipe or socket that the caller opened.
#pragma once

#include <brim/BRIMExport.h>
#include <brim/BRIMInputStream.h>

#include <cstddef>

/// Each read asks the system once and gives what is there, so it waits no longer than for the first
/// byte. The descriptor must be a blocking one.
class BRIM_EXPORT BRIMDescriptorInputStream final : public BRIMInputStream {
public:
    /// Who closes the descriptor.
    enum Ownership {
        eBorrowed,  ///< the caller, after the stream has ended
        eOwned      ///< the stream, in its destructor
    };

    explicit BRIMDescriptorInputStream(int descriptor, Ownership ownership = eBorrowed) noexcept;
    ~BRIMDescriptorInputStream() override;

    long long read(char* buffer, std::size_t size) override;

private:
    int m_descriptor;
    Ownership m_ownership;
};
