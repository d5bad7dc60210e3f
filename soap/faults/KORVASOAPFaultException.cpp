#include "korva/KORVASOAPFaultException.h"

#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVASOAPFault.h>
#include <zel/ZELDefineThrowable.h>
#include <zel/ZELPrintable.h>

#include <utility>

namespace {

KORVAObjectRegistryI* retain(KORVAObjectRegistryI* registry) noexcept {
    if (registry != nullptr) registry->addReference();
    return registry;
}

void release(KORVAObjectRegistryI* registry) noexcept {
    try {
        if (registry != nullptr) registry->removeReference();
    } catch (...) {  // NOLINT(bugprone-empty-catch): a destructor lets nothing out
    }
}

}  // namespace

KORVASOAPFaultException::KORVASOAPFaultException(KORVAHalyardHeader* header, KORVASOAPFault& fault,
                                                 KORVAObjectRegistryI* registry) noexcept
    : ZELException(0), m_header(header), m_fault(&fault), m_registry(retain(registry)) {}

KORVASOAPFaultException::KORVASOAPFaultException(const KORVASOAPFaultException& other) noexcept
    : ZELException(other),
      m_header(other.m_header),
      m_fault(other.m_fault),
      m_registry(retain(other.m_registry)) {}

KORVASOAPFaultException& KORVASOAPFaultException::operator=(
    const KORVASOAPFaultException& other) noexcept {
    if (this == &other) return *this;
    ZELException::operator=(other);
    m_header = other.m_header;
    m_fault = other.m_fault;
    release(std::exchange(m_registry, retain(other.m_registry)));
    return *this;
}

KORVASOAPFaultException::~KORVASOAPFaultException() {
    m_header = nullptr;
    m_fault = nullptr;
    release(std::exchange(m_registry, nullptr));
}

void KORVASOAPFaultException::getSOAPFaultMessages(std::string& text) const {
    m_fault->getMessages(text);
}

const char* KORVASOAPFaultException::toString() const {
    // The unclosed quotes and the tag that ends in another case are what readers of logs expect.
    try {
        std::string messages;
        m_fault->getMessages(messages);
        std::string text = "<Exception Name=\"";
        text += getThrowableName();
        text += "\" Error=\"";
        text += getErrorCodeString();
        text += "\" Severity=\"";
        text += getSeverityName(getSeverity());
        text += "\"><Messages=\"";
        text += zel::printable(messages);
        text += "\"/><Traceinfo>";
        for (const char* const line : getBackTrace()) {
            text += "<Trace Text=\"";
            text += line;
            text += " />";
        }
        text += "</TraceInfo></Exception>";
        m_text = ZELText(text.c_str());
    } catch (...) {
        m_text = ZELText::fromLiteral(getThrowableName());
    }
    return m_text.get();
}

ZEL_DEFINE_THROWABLE(KORVASOAPFaultException, "KORVASOAPFaultException::clone()");
