/// The outputs of the report, made while they are read.
#pragma once

#include <brim/BRIMInputStream.h>

#include <cstdint>
#include <string>

namespace live_call {

/// Stands for a document that a renderer writes: bytes that don't repeat and don't compress. Both
/// ends can make them, so that the client can tell whether what came is what was sent.
class DocumentOutput final : public BRIMInputStream {
public:
    explicit DocumentOutput(std::uint64_t size) : m_size(size) {}
    long long read(char* buffer, std::size_t size) override;

private:
    std::uint64_t m_size;
    std::uint64_t m_position = 0;
};

/// The same for a table: one line of text for each of `rows`.
class TableOutput final : public BRIMInputStream {
public:
    explicit TableOutput(unsigned rows) : m_rows(rows) {}
    long long read(char* buffer, std::size_t size) override;

private:
    unsigned m_rows;
    unsigned m_row = 0;
    std::string m_line;
    std::size_t m_position = 0;  ///< in the line
};

/// What the service has of its one report, in bytes and in rows.
constexpr std::uint64_t documentSize = 200'000'000;
constexpr unsigned tableRows = 200'000;

}  // namespace live_call
