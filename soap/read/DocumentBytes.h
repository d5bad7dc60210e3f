/// The bytes of a document: a stream, with a look at its start before it is read.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

class BRIMInputStream;

namespace korva {

/// Reads the stream in full pieces, however small those are that it gives. What the stream throws
/// passes through.
class DocumentBytes {
public:
    explicit DocumentBytes(BRIMInputStream& stream) : m_stream(stream) {}
    DocumentBytes(const DocumentBytes&) = delete;
    DocumentBytes& operator=(const DocumentBytes&) = delete;

    /// What the start of the document shows.
    enum class Form {
        Plain,  ///< UTF-8 and XML 1.0, as far as it is XML, and no document type
        Utf8,   ///< UTF-8, with a document type, or with a prolog that is not seen whole
        Other   ///< another encoding or version, or a declaration that is not as it should be
    };

    /// Looks at the start. To be called once, before the bytes are read.
    Form look();

    /// The start that was looked at.
    std::string_view start() const { return {m_start.data(), m_startSize}; }

    /// Fills `buffer`; fewer bytes only at the end of the stream.
    std::size_t read(char* buffer, std::size_t size);

private:
    std::size_t readStream(char* buffer, std::size_t size);

    BRIMInputStream& m_stream;
    std::array<char, 4096> m_start;
    std::size_t m_startSize = 0;
    std::string_view m_ahead;  ///< what is left of it
};

}  // namespace korva
