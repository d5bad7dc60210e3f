#include "korva/KORVASOAPFaultSerializer.h"

#include "soap/write/ObjectWriter.h"
#include "soap/write/WireTokens.h"

#include <brim/BRIMOutputStream.h>
#include <i18n/KORVAI18NRes.h>
#include <korva/KORVAFaultDetail.h>
#include <korva/KORVAFaultDetailArray.h>
#include <korva/KORVAMessage.h>
#include <korva/KORVAMessageArray.h>
#include <korva/KORVASOAPFault.h>
#include <korva/KORVAUndocumentedFaultDetail.h>
#include <korva/KORVAUndocumentedFaultDetailArray.h>
#include <korva/KORVA_CharStreamable.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

#include <algorithm>
#include <cstring>
#include <initializer_list>
#include <string_view>

namespace {

using korva::ObjectWriter;

// Where the objects stand, less one.
constexpr int headerIndent = 1;
constexpr int exceptionIndent = 3;
constexpr int exceptionChildIndent = 4;

constexpr const char* headerName = "bus:halyardHeader";
constexpr const char* exceptionName = "bus:exception";

bool equalIgnoringCase(std::string_view left, std::string_view right) {
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c; };
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [lower](char a, char b) { return lower(a) == lower(b); });
}

/// The elements around the header and the details.
class FrameWriter {
public:
    FrameWriter(BRIMOutputStream& stream, bool formatted)
        : m_stream(stream), m_formatted(formatted) {}

    void startLine(int level) {
        if (m_formatted) put({korva::wire::manyTabs.data(), static_cast<std::size_t>(level)});
    }

    void endLine() {
        if (m_formatted) put(korva::wire::lineFeed);
    }

    void line(int level, std::string_view text) {
        startLine(level);
        put(text);
        endLine();
    }

    /// An element on one line.
    template <class WriteContent>
    void element(int level, std::string_view name, WriteContent writeContent) {
        startLine(level);
        for (const std::string_view token : {std::string_view("<"), name, std::string_view(">")})
            put(token);
        writeContent();
        for (const std::string_view token : {std::string_view("</"), name, std::string_view(">")})
            put(token);
        endLine();
    }

    /// The text as it stands; nothing for null.
    void text(const char* text) {
        if (text == nullptr) return;
        if (KORVA_CharStreamable::isCharStreamable(text))
            KORVA_CharStreamable(text) >> m_stream;
        else
            put(text);
    }

    /// The text, with the envelope's prefix if its own stands for the envelope's namespace.
    void faultCode(const char* code) {
        if (code != nullptr && !KORVA_CharStreamable::isCharStreamable(code)) {
            const std::string_view value = code;
            const std::string_view prefix = value.substr(0, value.find(':'));
            if (prefix.size() != value.size() &&
                (equalIgnoringCase(prefix, "soapenv") || equalIgnoringCase(prefix, "soap-env"))) {
                put("SOAP-ENV");
                put(value.substr(prefix.size()));
                return;
            }
        }
        text(code);
    }

private:
    void put(std::string_view token) { m_stream.write(token.data(), token.size()); }

    BRIMOutputStream& m_stream;
    const bool m_formatted;
};

void writeDetails(const KORVAFaultDetailArray* details, BRIMOutputStream& stream) {
    if (details == nullptr) return;
    ObjectWriter writer(stream, false);
    for (const KORVAFaultDetail* const pFaultDetail : *details) {
        ZEL_ASSERT(pFaultDetail);
        writer.write(pFaultDetail, KORVASchemaTypeI::eKORVAFaultDetail, exceptionName,
                     exceptionIndent, false, false);
    }
}

void writeDetails(const KORVAUndocumentedFaultDetailArray* details, FrameWriter& frame,
                  BRIMOutputStream& stream) {
    if (details == nullptr) return;
    ObjectWriter writer(stream, false, ObjectWriter::Style::Literal);
    const auto write = [&writer](const void* object, KORVASchemaTypeI::ObjectType type,
                                 const char* name) {
        writer.write(object, type, name, exceptionChildIndent, false, false);
    };
    for (const KORVAUndocumentedFaultDetail* const pUndocumentedFaultDetail : *details) {
        ZEL_ASSERT(pUndocumentedFaultDetail);
        frame.line(exceptionIndent + 1, "<bus:exception>");
        write(pUndocumentedFaultDetail->getSeverity(), KORVASchemaTypeI::eString, "bus:severity");
        write(pUndocumentedFaultDetail->getErrorCodeString(), KORVASchemaTypeI::eString,
              "bus:errorCode");
        for (const KORVAMessage* const message : pUndocumentedFaultDetail->getMessage())
            write(message, KORVASchemaTypeI::eKORVAMessage, "bus:message");
        frame.line(exceptionIndent + 1, "</bus:exception>");
    }
}

}  // namespace

KORVASOAPFaultSerializer::KORVASOAPFaultSerializer() = default;

KORVASOAPFaultSerializer::~KORVASOAPFaultSerializer() = default;

void KORVASOAPFaultSerializer::serialize(const KORVAHalyardHeader* header,
                                         const KORVASOAPFault& fault, BRIMOutputStream& stream,
                                         bool writeXmlDeclaration, bool formatted) {
    ZEL_TRY {
        FrameWriter frame(stream, formatted);
        if (writeXmlDeclaration) frame.line(0, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
        korva::wire::writeEnvelopeStart(stream);
        frame.endLine();

        frame.line(1, "<SOAP-ENV:Header>");
        ObjectWriter(stream, false)
            .write(header, KORVASchemaTypeI::eKORVAHalyardHeader, headerName, headerIndent, false,
                   false);
        frame.line(1, "</SOAP-ENV:Header>");

        frame.line(1, "<SOAP-ENV:Body>");
        frame.line(2, "<SOAP-ENV:Fault>");
        frame.element(3, KORVAI18NRes::getView(KORVAI18NRes::eFaultCode),
                      [&] { frame.faultCode(fault.getFaultCode()); });
        frame.element(3, KORVAI18NRes::getView(KORVAI18NRes::eFaultString),
                      [&] { frame.text(fault.getFaultString()); });
        if (fault.getFaultActor() != nullptr)
            frame.element(3, KORVAI18NRes::getView(KORVAI18NRes::eFaultActor),
                          [&] { frame.text(fault.getFaultActor()); });
        frame.line(3, "<detail>");
        writeDetails(fault.getDetail(), stream);
        writeDetails(fault.getUndocumentedDetail(), frame, stream);
        frame.line(3, "</detail>");
        frame.line(2, "</SOAP-ENV:Fault>");
        frame.line(1, "</SOAP-ENV:Body>");
        frame.line(0, "</SOAP-ENV:Envelope>");
    }
    ZEL_CATCH("KORVASOAPFaultSerializer::serialize()");
}
