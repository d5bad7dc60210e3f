/// The reader of an envelope.
#pragma once

#include "soap/read/DocumentReceiver.h"
#include "soap/read/ElementRecord.h"
#include "soap/read/OperationTarget.h"
#include "soap/read/ReadLimits.h"
#include "soap/read/ReadingContext.h"
#include "soap/read/References.h"
#include "soap/read/ValueReader.h"

#include <korva/KORVANamespaceMapping.h>

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

class KORVAHalyardHeader;
class KORVASOAPFault;

namespace korva {

/// Checks the frame of an envelope, finds the operation, and reads each header entry and each
/// parameter as a value. What it makes of them, KORVAMessageIContentHandler tells.
///
/// The operation is the body's first element. What follows it is skipped, unless it is a fault and
/// the first one: a reply may have been begun before the service failed. Where references are
/// followed, elements behind the operation that have an id are recorded, for those that refer to
/// them; the end of the body then completes what was read.
class MessageReader final : public DocumentReceiver, private RootReceiver {
public:
    /// @param target must outlive the reader
    explicit MessageReader(OperationTarget& target) : m_target(target) {}

    /// Due before the parse. Both must outlive the reader.
    void setRules(const KORVA_ReadingPolicy& policy, KORVA_ReadingObserver* observer,
                  const ReadLimits& limits);

    ReadingContext& context() { return m_context; }
    const ReadingContext& context() const { return m_context; }
    KORVANamespaceMapping& mapping() { return m_mapping; }

    KORVAHalyardHeader* header() const { return m_header; }
    KORVASOAPFault* fault() const { return m_fault; }
    KORVAPortTypeBinding* binding() const { return m_target.binding(); }

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
        Skipped,    ///< an element that follows the operation, or what it holds
        NoChild,    ///< a child that no fault has, or what it holds
        Shared,     ///< an element that follows the operation and that others refer to, or ...
        Detail      ///< details of a fault that may be foreign, or ...
    };

    /// What has the value of another element.
    struct Root {
        const char* name;
        std::size_t number;  ///< of a parameter; 0 for the bus header
    };

    void startEnvelope(const Element& element);
    void startFrame(const Element& element);
    void startEntry(const Element& element);
    void startOperation(const Element& element);
    void startFault();
    void startFurther(const Element& element);
    void startFaultChild(const Element& element);
    void startDetail(const Element& element);
    void startValue(const Element& element, ParameterType type, std::size_t number);
    void startParameter(const Element& element);
    ValueReader& value() const;
    void endEntry();
    void endParameter();
    void endBody();
    void takeParameter(const char* name, std::size_t number, ObjectType type, void* value);
    void setRoot(std::size_t number, const ElementValue& value) override;
    bool readDetail();
    void keepDetailText();
    bool isRecording() const { return m_place == Place::Shared || m_place == Place::Detail; }

    KORVANamespaceMapping m_mapping;
    ReadingContext m_context{&m_mapping, nullptr};
    ValueReader m_value{m_context};
    ValueReader* m_schemaTypeContentHandler = nullptr;  ///< m_value while it reads a value
    OperationTarget& m_target;

    Place m_place = Place::Outside;
    /// In Entry, Parameter, and the places that are neither: the elements open in it.
    std::size_t m_depth = 0;
    bool m_hasOperation = false;

    const char* m_parameterName = nullptr;
    std::size_t m_parameterCount = 0;  ///< of this operation so far

    KORVAHalyardHeader* m_header = nullptr;
    KORVASOAPFault* m_fault = nullptr;

    const ReadLimits* m_limits = nullptr;
    std::unique_ptr<References> m_references;  ///< null where they are not followed
    std::vector<Root> m_roots;                 ///< which are references
    ElementRecord* m_record = nullptr;         ///< of the element that is being recorded
    std::unique_ptr<ElementRecord> m_detail;   ///< of the fault
    bool m_isDetailForeign = false;

    /// Declared by the element that comes next in the body.
    struct Declaration {
        const char* prefix;
        const char* uri;
    };
    std::vector<Declaration> m_furtherPrefixes;
};

}  // namespace korva
