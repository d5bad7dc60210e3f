/// The source for documents in UTF-8 without a document type, which are nearly all.
#pragma once

#include <memory>

namespace korva {

class DocumentBytes;
class ReadGuard;

/// Tells a reader of documents that libxml2 parses. Nothing is printed or opened, and no switch of
/// the process is touched. The parser and its names are kept for the next document, unless they
/// grew large or the last one failed. One document at a time.
class LibxmlSource {
public:
    LibxmlSource();
    LibxmlSource(const LibxmlSource&) = delete;
    LibxmlSource& operator=(const LibxmlSource&) = delete;
    ~LibxmlSource();

    /// @throws NotWellFormed the document is not well-formed, or not what this source is for
    /// @throws KORVAException 0xEA4F0001: a limit of the guard is exceeded; 0xEA4EB50B: there is a
    ///     document type
    /// @throws std::bad_alloc no memory is left
    /// What the reader and the stream throw passes through.
    void parse(DocumentBytes& bytes, ReadGuard& guard);

private:
    class Parser;
    class Parse;

    std::unique_ptr<Parser> m_parser;  ///< kept, or null
};

}  // namespace korva
