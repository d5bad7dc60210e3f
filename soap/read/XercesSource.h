/// The source for documents that the fast one does not serve: document types, other encodings.
#pragma once

#include "soap/read/ParserMemory.h"

namespace korva {

class DocumentBytes;
class EntityBudget;
class ReadGuard;

/// Tells a reader of documents that Xerces-C parses. No external entity or document type is opened.
///
/// Each document has a parser of its own; only its memory is kept for the next. So a failure leaves
/// nothing behind, and the XML platform may end and start again between two documents.
class XercesSource {
public:
    /// @param isUtf8 the document must have no bytes that are no UTF-8
    /// @throws ZELAssertError the XML platform has not been started
    /// @throws KORVAException 0xEA4F0001: a limit of the guard is exceeded; 0xEA4EB50B: the
    ///     document has a type, and the guard's limits refuse that
    /// @throws NotWellFormed, xercesc::SAXException the document is not well-formed
    /// @throws xercesc::OutOfMemoryException, std::bad_alloc no memory is left
    /// What the reader and the stream throw passes through.
    void parse(DocumentBytes& bytes, bool isUtf8, ReadGuard& guard);

private:
    class Handler;
    class Input;
    class ParserOwner;

    void run(Input& input, Handler& handler, EntityBudget& budget);

    ParserMemory m_memory;
};

}  // namespace korva
