#include "examples/live_call/ReportOutput.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace live_call {

namespace {

/// Eight bytes that follow from their place alone (the finalizer of SplitMix64).
std::uint64_t wordAt(std::uint64_t place) {
    std::uint64_t word = (place + 1) * 0x9E3779B97F4A7C15ULL;
    word = (word ^ (word >> 30U)) * 0xBF58476D1CE4E5B9ULL;
    word = (word ^ (word >> 27U)) * 0x94D049BB133111EBULL;
    return word ^ (word >> 31U);
}

std::string lineAt(unsigned row) {
    static constexpr std::array<const char*, 3> regions = {"EMEA", "APAC", "Americas"};
    const std::uint64_t word = wordAt(row);
    return std::to_string(row) + ';' + regions[word % regions.size()] + ';' +
           std::to_string(word % 100'000) + "\r\n";
}

}  // namespace

long long DocumentOutput::read(char* buffer, std::size_t size) {
    const std::size_t count =
        static_cast<std::size_t>(std::min<std::uint64_t>(size, m_size - m_position));
    for (std::size_t done = 0; done < count;) {
        const std::uint64_t word = wordAt(m_position / sizeof word);
        const std::size_t begin = m_position % sizeof word;
        const std::size_t piece = std::min(sizeof word - begin, count - done);
        std::memcpy(buffer + done, reinterpret_cast<const char*>(&word) + begin, piece);
        done += piece;
        m_position += piece;
    }
    return static_cast<long long>(count);
}

long long TableOutput::read(char* buffer, std::size_t size) {
    std::size_t count = 0;
    while (count < size) {
        if (m_position == m_line.size()) {
            if (m_row == m_rows) break;
            m_line = lineAt(m_row++);
            m_position = 0;
        }
        const std::size_t piece = std::min(size - count, m_line.size() - m_position);
        std::memcpy(buffer + count, m_line.data() + m_position, piece);
        m_position += piece;
        count += piece;
    }
    return static_cast<long long>(count);
}

}  // namespace live_call
