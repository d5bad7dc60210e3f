/// The one place that chooses a parser for a document, and tells its failures.
#pragma once

#include "soap/read/LibxmlSource.h"
#include "soap/read/ReadLimits.h"
#include "soap/read/XercesSource.h"

class BRIMInputStream;

namespace korva {

class DocumentReceiver;
class Findings;

/// How an entry point of the library appears in back traces.
struct EntryPoint {
    const char* function;  ///< throws what the parser reports
    const char* call;      ///< adds its place to what passes through
};

/// Parses a stream into a reader and turns every failure into one of the library's exceptions, with
/// the place in the document in the trace line of the entry point. Nothing but the stream is
/// opened.
class XmlReader {
public:
    ReadLimits& limits() { return m_limits; }

    /// @throws KORVAException 0xEA441F8B or 0xEA49BA8D: the document is not well-formed, or an
    ///     exception of no known kind arrived; 0xEA4F0001: a limit is exceeded; 0xEA4EB50B: there
    ///     is a document type where the limits refuse it
    /// @throws ZELAssertError the document needs Xerces-C, which has not been initialised
    /// @throws ZELOutOfMemoryError no memory is left
    /// @throws ZELStdExceptionError any other standard exception
    /// What the reader and the stream throw of ZELThrowable passes through.
    /// @param findings of the reader, which learn the place in the document while it is parsed
    void parse(BRIMInputStream& stream, DocumentReceiver& reader, Findings& findings,
               const EntryPoint& entryPoint);

private:
    void runSource(DocumentBytes& bytes, ReadGuard& guard);

    ReadLimits m_limits;
    LibxmlSource m_libxml;
    XercesSource m_xerces;
};

}  // namespace korva
