// The document that a parser reads: a stream, with a look at its start before the parse.
#pragma once

#include <xercesc/sax/InputSource.hpp>

#include <array>
#include <cstddef>

class BRIMInputStream;

namespace korva {

class ParserMemory;
class ReadGuard;

/// What the stream throws leaves the parse as the same exception, and the guard notes where.
/// Everything that the parser takes over comes from its own memory.
class DocumentSource final : public xercesc::InputSource {
public:
    DocumentSource(BRIMInputStream& stream, ReadGuard& guard, ParserMemory& memory);

    /// Whether the first bytes hold the whole prolog, in UTF-8, and show that the document has no
    /// document type. Reads from the stream; to be called once, before the parse.
    bool lacksDoctype();

    xercesc::BinInputStream* makeStream() const override;

private:
    class Bytes;

    std::size_t readStream(char* buffer, std::size_t size) const;

    BRIMInputStream& m_stream;
    ReadGuard& m_guard;
    std::array<char, 1024> m_start;
    std::size_t m_startSize = 0;
};

}  // namespace korva
