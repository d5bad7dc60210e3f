#include "soap/read/OperationTarget.h"

#include "core/Names.h"
#include "soap/read/PortTypeAdvice.h"

#include <korva/KORVAMessageFactory.h>
#include <korva/KORVAMessageI.h>
#include <korva/KORVAPortTypeI.h>
#include <korva/KORVA_PortType.h>
#include <zel/ZELAssert.h>

#include <algorithm>
#include <cstdint>
#include <string>

namespace korva {

// ----- requests -----

void RequestTarget::start(const char* name, std::string_view uri) {
    m_operationName = name;
    ZEL_ASSERT(m_supportedPortTypes);
    for (KORVAPortTypeI* const portType : *m_supportedPortTypes)
        if (uri == portType->getBoundNamespace()) {
            m_boundPortType = portType;
            return;
        }
    // The label is as published.
    refusePortType(name, uri, *m_supportedPortTypes, "KORVAMessageIContentHandler::characters");
}

ParameterType RequestTarget::typeOf(const char* parameter, std::size_t) {
    return {m_boundPortType->resolveOperationParamType(m_operationName, parameter),
            KORVASchemaTypeI::e_Unknown};
}

void RequestTarget::take(const char* parameter, std::size_t number, ObjectType type, void* value) {
    auto made = std::make_unique<KORVAMessageParam>(parameter, type, value);
    // Nearly always the last.
    const auto behind = std::find_if(m_parameters.rbegin(), m_parameters.rend(),
                                     [=](const Parameter& other) { return other.number < number; });
    m_parameters.insert(behind.base(), Parameter{number, std::move(made)});
}

void RequestTarget::finish(KORVAHalyardHeader* header) {
    ZEL_ASSERT(m_boundPortType);
    std::vector<KORVAMessageParam*> parameters;
    parameters.reserve(m_parameters.size());
    for (const Parameter& parameter : m_parameters)
        parameters.push_back(parameter.value.get());
    m_binding = m_boundPortType->createPortTypeBinding(m_operationName, parameters);
    m_binding->getInputMessage().setHalyardHeader(header);
    m_parameters.clear();
}

// ----- replies -----

void ReplyTarget::start(const char*, std::string_view) {}

ParameterType ReplyTarget::typeOf(const char* parameter, std::size_t number) {
    return {m_msgObj->getChildType(messageParameterName(parameter, number)),
            KORVASchemaTypeI::e_Unknown};
}

void ReplyTarget::take(const char* name, std::size_t number, ObjectType type, void* value) {
    // An element that is none of the message's parameters goes no further.
    const char* const parameter = messageParameterName(name, number);
    if (m_msgObj->getChildType(parameter) != KORVASchemaTypeI::e_Unknown)
        m_msgObj->setChildObject(parameter, value, type);
}

void ReplyTarget::finish(KORVAHalyardHeader* header) {
    // Also without one: the message may have been used before.
    m_msgObj->setHalyardHeader(header);
}

/// The message's name for a parameter: a reply's first element may be called anything.
const char* ReplyTarget::messageParameterName(const char* name, std::size_t number) const {
    if (number != 1) return name;
    const KORVAMessageFactory::KORVAParamDescriptor* const first =
        KORVAMessageFactory::getInstance().getParameterTypes(m_msgObj->getMessageType());
    return first != nullptr && first->name != nullptr ? first->name : name;
}

// ----- either -----

namespace {

constexpr std::string_view replySuffix = "Response";

/// Whether the element is named after the operation, or after the message, as some toolkits do.
bool isReplyOf(std::string_view element, std::uint32_t crc, const KORVA_Operation& operation) {
    if (crc == static_cast<std::uint32_t>(operation.getReplyType())) return true;
    const std::string_view name = operation.getName();
    return element.size() == name.size() + replySuffix.size() && element.starts_with(name) &&
           element.ends_with(replySuffix);
}

/// The declared type of a parameter of the operation's reply; e_Unknown if it has none such.
ObjectType replyTypeOf(const KORVA_Operation& operation, std::string_view name,
                       std::size_t number) {
    const KORVA_Operation::Parameters parameters = operation.getReplyParameters();
    if (number == 1) return parameters.empty() ? KORVASchemaTypeI::e_Unknown : parameters[0].type;
    for (const auto& parameter : parameters)
        if (parameter.name == name) return parameter.type;
    return KORVASchemaTypeI::e_Unknown;
}

bool fits(ObjectType type, const void* value, ObjectType declared) {
    if (type == declared || value == nullptr || declared == KORVASchemaTypeI::e_Unknown)
        return true;
    return KORVASchemaTypesFactory::isGeneratedType(type) &&
           static_cast<const KORVASchemaTypeI*>(value)->isa(declared);
}

}  // namespace

void AnyTarget::start(const char* name, std::string_view uri) {
    const std::string_view element(name);
    const std::uint32_t crc = nameCrc(name);
    bool isRequest = false;
    for (const KORVAPortTypeI* const portType : m_portTypes) {
        const auto* const described = dynamic_cast<const KORVA_PortType*>(portType);
        if (described == nullptr || uri != portType->getBoundNamespace()) continue;
        for (const KORVA_Operation operation : described->getOperations()) {
            isRequest = isRequest || element == operation.getName();
            if (isReplyOf(element, crc, operation)) m_candidates.push_back(operation);
        }
    }
    if (isRequest) m_candidates.clear();
    if (!isReply()) m_request.start(name, uri);
}

ParameterType AnyTarget::typeOf(const char* parameter, std::size_t number) {
    if (!isReply()) return m_request.typeOf(parameter, number);
    const ObjectType first = replyTypeOf(m_candidates.front(), parameter, number);
    const bool isSame = std::all_of(m_candidates.begin(), m_candidates.end(),
                                    [&](const KORVA_Operation& candidate) {
                                        return replyTypeOf(candidate, parameter, number) == first;
                                    });
    return isSame ? ParameterType{first, KORVASchemaTypeI::e_Unknown}
                  : ParameterType{KORVASchemaTypeI::e_Unknown, first};
}

void AnyTarget::take(const char* parameter, std::size_t number, ObjectType type, void* value) {
    if (!isReply()) return m_request.take(parameter, number, type, value);
    m_parameters.push_back({parameter, number, type, value});
    // Of those that do not fit, one is kept to tell what does not.
    const auto misfits = std::stable_partition(
        m_candidates.begin(), m_candidates.end(), [&](const KORVA_Operation& candidate) {
            return fits(type, value, replyTypeOf(candidate, parameter, number));
        });
    if (misfits != m_candidates.begin()) m_candidates.erase(misfits, m_candidates.end());
}

void AnyTarget::finish(KORVAHalyardHeader* header) {
    if (!isReply()) return m_request.finish(header);
    m_binding = m_candidates.front().createBinding();
    ReplyTarget reply(*m_binding, m_binding->getOutputMessage());
    for (const Parameter& parameter : m_parameters)
        reply.take(parameter.name, parameter.number, parameter.type, parameter.value);
    reply.finish(header);
    m_parameters.clear();
}

}  // namespace korva
