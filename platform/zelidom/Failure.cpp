#include "platform/zelidom/Failure.h"

#include <zel/ZELFrame.h>
#include <zel/ZELOutOfMemoryError.h>
#include <zel/ZELPrintable.h>
#include <zelidom/ZELIDOM_Error.h>
#include <zelidom/ZELIDOM_String.h>

#include <xercesc/dom/DOMException.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/XMLException.hpp>

#include <new>
#include <string>

namespace {

/// Throws what Xerces-C reports, in its words, which may be the document's.
[[noreturn]] void raise(const XMLCh* text, const std::string& place, ZELFileLocation location,
                        const char* function) {
    ZELIDOM_Error((zel::printable(ZELIDOM_String(text).utf8()) + place).c_str())
        .hurl(location, function, "ZEL_THROW");
}

std::string placeOf(const xercesc::SAXParseException& exception) {
    return " (line " + std::to_string(exception.getLineNumber()) + ", column " +
           std::to_string(exception.getColumnNumber()) + ")";
}

}  // namespace

void zelidom::translate(ZELFileLocation location, const char* function) {
    try {
        try {
            throw;
        } catch (const xercesc::OutOfMemoryException&) {
            throw std::bad_alloc();
        } catch (const xercesc::DOMException& exception) {
            raise(exception.getMessage(), {}, location, function);
        } catch (const xercesc::SAXParseException& exception) {
            raise(exception.getMessage(), placeOf(exception), location, function);
        } catch (const xercesc::XMLException& exception) {
            raise(exception.getMessage(), {}, location, function);
        }
    } catch (const ZELIDOM_Error&) {
        throw;
    } catch (...) {
        zel::translate(location, function);
    }
}
