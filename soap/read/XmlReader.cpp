#include "soap/read/XmlReader.h"

#include "soap/read/DocumentSource.h"
#include "soap/read/ReadGuard.h"
#include "soap/read/Utf16.h"

#include <i18n/KORVAMessageId.h>
#include <korva/KORVAException.h>
#include <korva/KORVAZELMessage.h>
#include <zel/I18NString.h>
#include <zel/ZELFrame.h>
#include <zel/ZELMessageParm.h>
#include <zel/ZELOutOfMemoryError.h>
#include <zel/ZELStdExceptionError.h>
#include <zel/ZELThrow.h>

#include <xercesc/framework/XMLErrorCodes.hpp>
#include <xercesc/parsers/SAX2XMLReaderImpl.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/SecurityManager.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>

#include <exception>
#include <limits>
#include <new>
#include <string>

namespace korva {

/// The parser, which tells the guard of what a handler is not told.
class XmlReader::Parser final : public xercesc::SAX2XMLReaderImpl {
public:
    Parser(ParserMemory& memory, ReadGuard& guard) : SAX2XMLReaderImpl(&memory), m_guard(guard) {}

    void error(unsigned code, const XMLCh* domain, xercesc::XMLErrorReporter::ErrTypes type,
               const XMLCh* text, const XMLCh* systemId, const XMLCh* publicId, XMLFileLoc line,
               XMLFileLoc column) override {
        if (code == xercesc::XMLErrs::EntityExpansionLimitExceeded &&
            xercesc::XMLString::equals(domain, xercesc::XMLUni::fgXMLErrDomain)) {
            m_guard.notePosition(line, column);
            m_guard.refuseEntityExpansion();
        }
        SAX2XMLReaderImpl::error(code, domain, type, text, systemId, publicId, line, column);
    }

    void resetDocType() override {
        try {
            SAX2XMLReaderImpl::resetDocType();
        } catch (...) {
            m_guard.notePosition();
            throw;
        }
    }

private:
    ReadGuard& m_guard;
};

namespace {

/// Where the parse failed, or the empty text. Does not throw: a trace line that lacks the place is
/// better than none.
std::string place(const ReadGuard& guard) noexcept {
    try {
        return guard.place();
    } catch (const std::bad_alloc&) {
        return {};
    }
}

const char* orNull(const std::string& text) {
    return text.empty() ? nullptr : text.c_str();
}

/// Throws `exception` with a trace line that tells the place in the document.
template <class Exception>
[[noreturn]] void raiseAt(const ReadGuard& guard, Exception exception, ZELFileLocation location,
                          const char* function) {
    exception.addBackTrace(location, function, "ZEL_THROW", orNull(place(guard)));
    throw exception;
}

/// Throws what the parser reports, in its words.
[[noreturn]] void raiseParseError(const ReadGuard& guard, const xercesc::SAXException& reported,
                                  const XMLCh* systemId, ZELFileLocation location,
                                  const char* function) {
    KORVAException exception(0);
    ZEL_TRY {
        KORVAZELMessage message(eKORVA_ParseError);
        message << ZELMessageParm(I18NString(utf8(reported.getMessage()) + utf8(systemId)));
        exception << message;
    }
    ZEL_CATCH(function);
    raiseAt(guard, exception, location, function);
}

[[noreturn]] void raiseParseFailed(const ReadGuard& guard, ZELFileLocation location,
                                   const char* function) {
    KORVAException exception(0);
    ZEL_TRY {
        exception << KORVAZELMessage(eKORVA_ParseFailed);
    }
    ZEL_CATCH(function);
    raiseAt(guard, exception, location, function);
}

}  // namespace

/// A parser that ends with the parse. One that ran out of memory is not destroyed: its memory is
/// taken from under it, as its own destructor would go wrong.
class XmlReader::ParserOwner {
public:
    ParserOwner(ParserMemory& memory, ReadGuard& guard) : m_memory(memory) {
        try {
            m_parser = new (&memory) Parser(memory, guard);
        } catch (const xercesc::OutOfMemoryException&) {
            m_memory.release();
            throw;
        }
    }
    ParserOwner(const ParserOwner&) = delete;
    ParserOwner& operator=(const ParserOwner&) = delete;
    ~ParserOwner() { delete m_parser; }

    template <class Action>
    void run(Action action) {
        try {
            action(*m_parser);
        } catch (const xercesc::OutOfMemoryException&) {
            m_parser = nullptr;
            m_memory.release();
            throw;
        }
    }

private:
    ParserMemory& m_memory;
    Parser* m_parser;
};

void XmlReader::runParser(BRIMInputStream& stream, ReadGuard& guard,
                          xercesc::DTDHandler* dtdHandler) {
    using xercesc::XMLUni;
    xercesc::SecurityManager security;
    security.setEntityExpansionLimit(m_limits.entityExpansions);
    DocumentSource source(stream, guard, m_memory);
    const bool lacksDoctype = source.lacksDoctype();

    ParserOwner owner(m_memory, guard);
    owner.run([&](Parser& parser) {
        // The scanner that leaves document types out is faster, and gives the same events. Without
        // a document type there is nothing to expand but the five predefined entities, and those
        // it would count.
        if (lacksDoctype)
            parser.setProperty(XMLUni::fgXercesScannerName,
                               const_cast<XMLCh*>(XMLUni::fgWFXMLScanner));
        else
            parser.setProperty(XMLUni::fgXercesSecurityManager, &security);
        parser.setContentHandler(&guard);
        if (dtdHandler != nullptr) parser.setDTDHandler(dtdHandler);
        parser.setErrorHandler(&guard);
        parser.setEntityResolver(&guard);
        parser.setFeature(XMLUni::fgXercesSchema, false);
        parser.setFeature(XMLUni::fgSAX2CoreValidation, false);
        parser.setFeature(XMLUni::fgSAX2CoreNameSpaces, true);
        parser.setFeature(XMLUni::fgSAX2CoreNameSpacePrefixes, true);
        parser.parse(source);
    });
}

void XmlReader::parse(BRIMInputStream& stream, xercesc::ContentHandler& handler,
                      xercesc::DTDHandler* dtdHandler, const EntryPoint& entryPoint) {
    // The text of one attribute counts as text: the parser's buffers have twice the room that they
    // need, in UTF-16, beside some of a fixed size.
    constexpr std::size_t fixedSize = std::size_t{1} << 20U;
    m_memory.setLargestBlock(m_limits.text < std::numeric_limits<std::size_t>::max() / 8
                                 ? 4 * m_limits.text + fixedSize
                                 : std::numeric_limits<std::size_t>::max() / 2);
    m_memory.trim();  // a failure may have left much behind
    ReadGuard guard(handler, m_limits, entryPoint.function);
    try {
        try {
            runParser(stream, guard, dtdHandler);
            m_memory.trim();
        } catch (const ParserMemory::BlockTooLarge&) {
            guard.refuseText();
        }
    } catch (const xercesc::SAXParseException& exception) {
        guard.notePosition(exception.getLineNumber(), exception.getColumnNumber());
        raiseParseError(guard, exception, exception.getSystemId(), ZEL_LOCATION,
                        entryPoint.function);
    } catch (const xercesc::SAXException& exception) {
        raiseParseError(guard, exception, nullptr, ZEL_LOCATION, entryPoint.function);
    } catch (ZELThrowable& throwable) {
        ZEL_RETHROW(throwable, entryPoint.call, orNull(place(guard)));
    } catch (const xercesc::OutOfMemoryException&) {
        raiseAt(guard, ZELOutOfMemoryError(), ZEL_LOCATION, entryPoint.call);
    } catch (const std::bad_alloc&) {
        raiseAt(guard, ZELOutOfMemoryError(), ZEL_LOCATION, entryPoint.call);
    } catch (const std::exception& exception) {
        raiseAt(guard, ZELStdExceptionError(exception), ZEL_LOCATION, entryPoint.call);
    } catch (...) {
        raiseParseFailed(guard, ZEL_LOCATION, entryPoint.function);
    }
}

}  // namespace korva
