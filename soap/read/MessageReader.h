/// The reader of an envelope.
#pragma once

#include "soap/read/DocumentReceiver.h"
#include "soap/read/ReadingContext.h"
#include "soap/read/ValueReader.h"

#include <korva/KORVAMessageParam.h>
#include <korva/KORVANamespaceMapping.h>
#include <korva/KORVAPortTypeBinding.h>
#include <zel/ZELSmartPointer.h>

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

class KORVAHalyardHeader;
class KORVAMessageI;
class KORVAPortTypeI;
class KORVASOAPFault;

namespace korva {

/// Checks the frame of an envelope, finds the operation, and reads each header entry and each
/// parameter as a value. What it makes of them, KORVAMessageIContentHandler tells.
///
/// The operation is the body's first element. What follows it is skipped, unless it is a fault and
/// the first one: a reply may have been begun before the service failed.
class MessageReader final : public DocumentReceiver {
public:
    /// At the server. The vector must outlive the reader and have an element.
    explicit MessageReader(const std::vector<KORVAPortTypeI*>& supportedPortTypes)
        : m_supportedPortTypes(&supportedPortTypes) {}

    /// At the client. Both must outlive the reader.
    MessageReader(KORVAPortTypeBinding& binding, KORVAMessageI& message)
        : m_givenBinding(&binding), m_msgObj(&message) {}

    ReadingContext& context() { return m_context; }
    const ReadingContext& context() const { return m_context; }
    KORVANamespaceMapping& mapping() { return m_mapping; }

    KORVAHalyardHeader* header() const { return m_header; }
    KORVASOAPFault* fault() const { return m_fault; }
    KORVAPortTypeBinding* binding() const;

    void startDocument() override;
    void endDocument() override;
    void startPrefix(const char* prefix, const char* uri) override;
    void endPrefix(const char* prefix) override;
    void startElement(const Element& element) override;
    void text(std::string_view piece) override;
    void endElement() override;

private:
    /// Where the reader is: what the innermost open element is.
    enum class Place {
        Outside,
        Envelope,
        Header,
        Entry,  ///< a header entry, or what it holds
        Body,
        Operation,  ///< or a fault
        Parameter,  ///< or what it holds
        Skipped     ///< an element that follows the operation, or what it holds
    };

    void startEnvelope(const Element& element);
    void startFrame(const Element& element);
    void startEntry(const Element& element);
    void startOperation(const Element& element);
    void startFault();
    void findPortType(const Element& element);
    void startValue(const Element& element, ObjectType expectedType);
    void startParameter(const Element& element);
    const char* messageParameterName(const char* name) const;
    ValueReader& value() const;
    void endEntry();
    void endParameter();
    void bind();

    KORVANamespaceMapping m_mapping;
    ReadingContext m_context{&m_mapping, nullptr};
    ValueReader m_value{m_context};
    ValueReader* m_schemaTypeContentHandler = nullptr;  ///< m_value while it reads a value

    Place m_place = Place::Outside;
    std::size_t m_depth = 0;  ///< in Entry, Parameter and Skipped: the elements open in it
    bool m_hasOperation = false;

    const std::vector<KORVAPortTypeI*>* m_supportedPortTypes = nullptr;  ///< at the server
    KORVAPortTypeBinding* m_givenBinding = nullptr;                      ///< at the client
    KORVAMessageI* m_msgObj = nullptr;                                   ///< at the client

    const char* m_operationName = nullptr;  ///< the registry's
    KORVAPortTypeI* m_boundPortType = nullptr;
    const char* m_parameterName = nullptr;
    std::size_t m_parameterCount = 0;                              ///< of this operation so far
    std::vector<std::unique_ptr<KORVAMessageParam>> m_parameters;  ///< server: what was read

    KORVAHalyardHeader* m_header = nullptr;
    KORVASOAPFault* m_fault = nullptr;
    ZELSmartPointer<KORVAPortTypeBinding> m_binding;  ///< the one that was made
};

}  // namespace korva
