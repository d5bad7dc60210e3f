// The one place that makes an XML parser and sets it up.
#pragma once

#include "soap/read/ParserMemory.h"
#include "soap/read/ReadLimits.h"

#include <xercesc/util/XercesDefs.hpp>

class BRIMInputStream;

XERCES_CPP_NAMESPACE_BEGIN
class ContentHandler;
class DTDHandler;
XERCES_CPP_NAMESPACE_END

namespace korva {

class ReadGuard;

/// How an entry point of the library appears in back traces.
struct EntryPoint {
    const char* function;  ///< throws what the parser reports
    const char* call;      ///< adds its place to what passes through
};

/// Parses a stream into a handler and turns every failure into one of the library's exceptions,
/// with the place in the document in the trace line of the entry point. No external entity or
/// document type is opened.
///
/// Each parse has a parser of its own; only its memory is kept for the next. So a failure leaves
/// nothing behind, and the XML platform may end and start again between two parses.
class XmlReader {
public:
    ReadLimits& limits() { return m_limits; }

    /// @param dtdHandler is told of a document type, or null
    /// @throws KORVAException 0xEA441F8B or 0xEA49BA8D: the document is not well-formed, or an
    ///     exception of no known kind arrived; 0xEA4F0001: a limit is exceeded
    /// @throws ZELOutOfMemoryError no memory is left
    /// @throws ZELStdExceptionError any other standard exception
    /// What the handler and the stream throw of ZELThrowable passes through.
    void parse(BRIMInputStream& stream, xercesc::ContentHandler& handler,
               xercesc::DTDHandler* dtdHandler, const EntryPoint& entryPoint);

private:
    class Parser;
    class ParserOwner;

    void runParser(BRIMInputStream& stream, ReadGuard& guard, xercesc::DTDHandler* dtdHandler);

    ReadLimits m_limits;
    ParserMemory m_memory;
};

}  // namespace korva
