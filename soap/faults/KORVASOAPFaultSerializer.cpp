#include "korva/KORVASOAPFaultSerializer.h"

#include "soap/write/EnvelopeFrame.h"
#include "soap/write/ObjectWriter.h"
#include "soap/write/TextStreams.h"

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
#include <zel/ZELAscii.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

#include <cstring>
#include <string>
#include <string_view>

namespace {

using korva::ElementName;
using korva::EnvelopeFrame;
using korva::ObjectWriter;
using korva::WriteSettings;

// Where the objects stand, less one.
constexpr int exceptionIndent = 3;
constexpr int exceptionChildIndent = 4;

constexpr ElementName headerName = {ElementName::Child, "halyardHeader"};
constexpr ElementName exceptionName = {ElementName::Child, "exception"};

// What stands around them, for the paths of errors.
constexpr std::string_view detailPath = "/Fault/detail";
constexpr std::string_view exceptionPath = "/Fault/detail/exception";

/// The place of the fault's own texts.
class FaultPlace final : public korva::TextPlace {
public:
    explicit FaultPlace(std::string_view element) : m_element(element) {}
    std::string path() const override { return "/Fault/" + std::string(m_element); }

private:
    std::string_view m_element;
};

/// The elements of the fault itself.
class FaultWriter {
public:
    FaultWriter(BRIMOutputStream& stream, EnvelopeFrame& frame, bool escapeTexts,
                const WriteSettings& settings)
        : m_stream(stream), m_frame(frame), m_escapeTexts(escapeTexts), m_settings(settings) {}

    /// An element on one line; null makes it empty.
    void element(KORVAI18NRes::Number number, const char* value) {
        const std::string_view name = KORVAI18NRes::getView(number);
        m_frame.startLine(3);
        tag("<", name);
        if (value != nullptr) text(name, withoutPrefix(number, value));
        tag("</", name);
        m_frame.endLine();
    }

private:
    void tag(std::string_view mark, std::string_view name) {
        for (const std::string_view token : {mark, name, std::string_view(">")})
            m_frame.put(token);
    }

    /// What is to follow of the value: a code whose prefix stands for the envelope's namespace gets
    /// that of this envelope first.
    const char* withoutPrefix(KORVAI18NRes::Number number, const char* value) {
        if (number != KORVAI18NRes::eFaultCode || KORVA_CharStreamable::isCharStreamable(value))
            return value;
        const char* const colon = std::strchr(value, ':');
        if (colon == nullptr) return value;
        const std::string_view prefix(value, static_cast<std::size_t>(colon - value));
        if (!zel::equalIgnoringCase(prefix, "soapenv") &&
            !zel::equalIgnoringCase(prefix, "soap-env"))
            return value;
        m_frame.put("SOAP-ENV");
        return colon;
    }

    void text(std::string_view element, const char* value) {
        if (!m_escapeTexts) {
            copy(value, m_stream);
            return;
        }
        const FaultPlace place(element);
        korva::InvalidText invalid(m_settings.replaceInvalidText);
        invalid.setPlace(place);
        korva::EncodedTextStream encoded(m_stream, invalid);
        copy(value, encoded);
        encoded.close();
    }

    static void copy(const char* value, BRIMOutputStream& stream) {
        if (KORVA_CharStreamable::isCharStreamable(value))
            KORVA_CharStreamable(value) >> stream;
        else
            stream.write(value, std::strlen(value));
    }

    BRIMOutputStream& m_stream;
    EnvelopeFrame& m_frame;
    const bool m_escapeTexts;
    const WriteSettings& m_settings;
};

void writeDetails(const KORVAFaultDetailArray* details, const WriteSettings& settings,
                  BRIMOutputStream& stream) {
    if (details == nullptr) return;
    ObjectWriter writer(stream, settings);
    writer.setParent(detailPath);
    for (const KORVAFaultDetail* const pFaultDetail : *details) {
        ZEL_ASSERT(pFaultDetail);
        writer.write(pFaultDetail, KORVASchemaTypeI::eKORVAFaultDetail, exceptionName,
                     exceptionIndent, false, false);
    }
}

void writeExceptionTag(EnvelopeFrame& frame, std::string_view mark) {
    frame.startLine(exceptionIndent + 1);
    for (const std::string_view token :
         {mark, korva::childPrefix, exceptionName.text, std::string_view(">")})
        frame.put(token);
    frame.endLine();
}

void writeDetails(const KORVAUndocumentedFaultDetailArray* details, EnvelopeFrame& frame,
                  const WriteSettings& settings, BRIMOutputStream& stream) {
    if (details == nullptr) return;
    ObjectWriter writer(stream, settings, ObjectWriter::Style::Literal);
    writer.setParent(exceptionPath);
    const auto write = [&writer](const void* object, KORVASchemaTypeI::ObjectType type,
                                 std::string_view name) {
        writer.write(object, type, {ElementName::Child, name}, exceptionChildIndent, false, false);
    };
    for (const KORVAUndocumentedFaultDetail* const pUndocumentedFaultDetail : *details) {
        ZEL_ASSERT(pUndocumentedFaultDetail);
        writeExceptionTag(frame, "<");
        write(pUndocumentedFaultDetail->getSeverity(), KORVASchemaTypeI::eString, "severity");
        write(pUndocumentedFaultDetail->getErrorCodeString(), KORVASchemaTypeI::eString,
              "errorCode");
        for (const KORVAMessage* const message : pUndocumentedFaultDetail->getMessage())
            write(message, KORVASchemaTypeI::eKORVAMessage, "message");
        writeExceptionTag(frame, "</");
    }
}

}  // namespace

KORVASOAPFaultSerializer::KORVASOAPFaultSerializer()
    : m_escapeTexts(false), m_replaceInvalidText(false) {}

KORVASOAPFaultSerializer::~KORVASOAPFaultSerializer() = default;

void KORVASOAPFaultSerializer::setEscapeTexts(bool escape) {
    m_escapeTexts = escape;
}

void KORVASOAPFaultSerializer::setReplaceInvalidText(bool replace) {
    m_replaceInvalidText = replace;
}

void KORVASOAPFaultSerializer::serialize(const KORVAHalyardHeader* header,
                                         const KORVASOAPFault& fault, BRIMOutputStream& stream,
                                         bool writeXmlDeclaration, bool formatted) {
    ZEL_TRY {
        const WriteSettings settings{false, m_replaceInvalidText};
        EnvelopeFrame frame(stream, formatted);
        frame.start(writeXmlDeclaration);
        ObjectWriter(stream, settings)
            .write(header, KORVASchemaTypeI::eKORVAHalyardHeader, headerName,
                   EnvelopeFrame::headerIndent, false, false);
        frame.startBody();

        frame.line("\t\t<SOAP-ENV:Fault>\n");
        FaultWriter writer(stream, frame, m_escapeTexts, settings);
        writer.element(KORVAI18NRes::eFaultCode, fault.getFaultCode());
        writer.element(KORVAI18NRes::eFaultString, fault.getFaultString());
        if (fault.getFaultActor() != nullptr)
            writer.element(KORVAI18NRes::eFaultActor, fault.getFaultActor());
        frame.line("\t\t\t<detail>\n");
        writeDetails(fault.getDetail(), settings, stream);
        writeDetails(fault.getUndocumentedDetail(), frame, settings, stream);
        frame.line("\t\t\t</detail>\n");
        frame.line("\t\t</SOAP-ENV:Fault>\n");
        frame.end();
    }
    ZEL_CATCH("KORVASOAPFaultSerializer::serialize()");
}
