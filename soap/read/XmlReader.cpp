#include "soap/read/XmlReader.h"

#include "core/NumberedError.h"
#include "soap/read/DocumentBytes.h"
#include "soap/read/FoundInstead.h"
#include "soap/read/ReadGuard.h"
#include "soap/read/Utf16.h"

#include <i18n/KORVAMessageId.h>
#include <korva/KORVAException.h>
#include <zel/ZELFrame.h>
#include <zel/ZELOutOfMemoryError.h>
#include <zel/ZELStdExceptionError.h>
#include <zel/ZELThrow.h>

#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>

#include <exception>
#include <memory>
#include <new>
#include <string>

namespace korva {

namespace {

/// Where the parse failed, or null.
const char* place(const ReadGuard& guard) {
    return guard.place().empty() ? nullptr : guard.place().c_str();
}

/// Throws `exception` with a trace line that tells the place in the document.
template <class Exception>
[[noreturn]] void raiseAt(const ReadGuard& guard, Exception exception, ZELFileLocation location,
                          const char* function) {
    exception.addBackTrace(location, function, "ZEL_THROW", place(guard));
    throw exception;
}

/// Throws what the parser reports, in its words, and what else the document seems to be.
[[noreturn]] void raiseParseError(const ReadGuard& guard, const DocumentBytes& bytes,
                                  const std::string& reported, ZELFileLocation location,
                                  const char* function) {
    KORVAException exception(0);
    ZEL_TRY {
        addMessage(exception, {eKORVA_ParseError, {reported.c_str()}});
        const std::string found = foundInsteadOfXml(bytes.start());
        if (!found.empty()) addMessage(exception, {eKORVA_FoundInstead, {found.c_str()}});
    }
    ZEL_CATCH(function);
    raiseAt(guard, exception, location, function);
}

[[noreturn]] void raiseParseFailed(const ReadGuard& guard, ZELFileLocation location,
                                   const char* function) {
    KORVAException exception(0);
    ZEL_TRY {
        addMessage(exception, {eKORVA_ParseFailed, {}});
    }
    ZEL_CATCH(function);
    raiseAt(guard, exception, location, function);
}

}  // namespace

void XmlReader::runSource(DocumentBytes& bytes, ReadGuard& guard) {
    // What libxml2 can do ends here.
    constexpr std::size_t longestName = 10'000'000;
    DocumentBytes::Form form = DocumentBytes::Form::Other;
    try {
        form = bytes.look();
    } catch (...) {
        guard.notePosition({1, 1});
        throw;
    }
    if (form == DocumentBytes::Form::Plain && m_limits.startTag < longestName)
        m_libxml.parse(bytes, guard);
    else
        m_xerces.parse(bytes, form != DocumentBytes::Form::Other, guard);
}

void XmlReader::parse(BRIMInputStream& stream, DocumentReceiver& reader, Findings& findings,
                      const EntryPoint& entryPoint) {
    ReadGuard guard(reader, m_limits, entryPoint.function);
    DocumentBytes bytes(stream);
    findings.place = &guard;
    const std::unique_ptr<Findings, void (*)(Findings*)> end(
        &findings, [](Findings* told) { told->place = nullptr; });
    try {
        runSource(bytes, guard);
    } catch (const NotWellFormed& document) {
        raiseParseError(guard, bytes, document.text, ZEL_LOCATION, entryPoint.function);
    } catch (const xercesc::SAXParseException& exception) {
        raiseParseError(guard, bytes, utf8(exception.getMessage()) + utf8(exception.getSystemId()),
                        ZEL_LOCATION, entryPoint.function);
    } catch (const xercesc::SAXException& exception) {
        raiseParseError(guard, bytes, utf8(exception.getMessage()), ZEL_LOCATION,
                        entryPoint.function);
    } catch (ZELThrowable& throwable) {
        ZEL_RETHROW(throwable, entryPoint.call, place(guard));
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
