/// What becomes of the operation in a body.
#pragma once

#include "core/Descriptor.h"

#include <korva/KORVAMessageParam.h>
#include <korva/KORVAPortTypeBinding.h>
#include <korva/KORVA_Operation.h>
#include <zel/ZELSmartPointer.h>

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

class KORVAHalyardHeader;
class KORVAMessageI;
class KORVAObjectRegistryI;
class KORVAPortTypeI;

namespace korva {

/// What an element of the operation may be.
struct ParameterType {
    /// The type that it must have or be derived from; e_Unknown if it tells that itself.
    ObjectType expected = KORVASchemaTypeI::e_Unknown;
    /// The type that it has if neither that nor itself tells one.
    ObjectType declared = KORVASchemaTypeI::e_Unknown;
};

/// Takes an operation with its parameters. The name of the operation lives as long as the registry
/// of what is read, those of parameters as long as the parse.
class OperationTarget {
public:
    OperationTarget() = default;
    OperationTarget(const OperationTarget&) = delete;
    OperationTarget& operator=(const OperationTarget&) = delete;
    virtual ~OperationTarget() = default;

    /// The operation's element begins.
    virtual void start(const char* name, std::string_view uri) = 0;
    /// @param number of the parameter, from 1
    virtual ParameterType typeOf(const char* parameter, std::size_t number) = 0;
    /// A parameter ended; the value of one that is a reference comes when the body ends.
    virtual void take(const char* parameter, std::size_t number, ObjectType type, void* value) = 0;
    /// The envelope ended, and holds no fault.
    virtual void finish(KORVAHalyardHeader* header) = 0;
    /// What was given or made, or null.
    virtual KORVAPortTypeBinding* binding() const = 0;
};

/// At the server: makes a binding with the operation's request.
class RequestTarget final : public OperationTarget {
public:
    /// The vector must outlive the target and have an element.
    explicit RequestTarget(const std::vector<KORVAPortTypeI*>& supportedPortTypes)
        : m_supportedPortTypes(&supportedPortTypes) {}

    void start(const char* name, std::string_view uri) override;
    ParameterType typeOf(const char* parameter, std::size_t number) override;
    void take(const char* parameter, std::size_t number, ObjectType type, void* value) override;
    void finish(KORVAHalyardHeader* header) override;
    KORVAPortTypeBinding* binding() const override { return m_binding.get(); }

private:
    struct Parameter {
        std::size_t number;
        std::unique_ptr<KORVAMessageParam> value;
    };

    const std::vector<KORVAPortTypeI*>* m_supportedPortTypes;
    const char* m_operationName = nullptr;
    KORVAPortTypeI* m_boundPortType = nullptr;
    std::vector<Parameter> m_parameters;  ///< what was read
    ZELSmartPointer<KORVAPortTypeBinding> m_binding;
};

/// At the client: fills the reply of a binding.
class ReplyTarget final : public OperationTarget {
public:
    /// Both must outlive the target.
    ReplyTarget(KORVAPortTypeBinding& binding, KORVAMessageI& message)
        : m_givenBinding(&binding), m_msgObj(&message) {}

    void start(const char* name, std::string_view uri) override;
    ParameterType typeOf(const char* parameter, std::size_t number) override;
    void take(const char* name, std::size_t number, ObjectType type, void* value) override;
    void finish(KORVAHalyardHeader* header) override;
    KORVAPortTypeBinding* binding() const override { return m_givenBinding; }

private:
    const char* messageParameterName(const char* name, std::size_t number) const;

    KORVAPortTypeBinding* m_givenBinding;
    KORVAMessageI* m_msgObj;
};

/// For who does not know what comes: a request or a reply of any operation that is offered.
class AnyTarget final : public OperationTarget {
public:
    /// The vector must outlive the target and have an element.
    explicit AnyTarget(const std::vector<KORVAPortTypeI*>& portTypes)
        : m_portTypes(portTypes), m_request(portTypes) {}

    /// Whether the operation is a reply.
    bool isReply() const { return !m_candidates.empty(); }
    /// The operations whose replies have the element and the parameters that came.
    const std::vector<KORVA_Operation>& candidates() const { return m_candidates; }

    void start(const char* name, std::string_view uri) override;
    ParameterType typeOf(const char* parameter, std::size_t number) override;
    void take(const char* parameter, std::size_t number, ObjectType type, void* value) override;
    void finish(KORVAHalyardHeader* header) override;
    KORVAPortTypeBinding* binding() const override {
        return isReply() ? m_binding.get() : m_request.binding();
    }

private:
    struct Parameter {
        const char* name;
        std::size_t number;
        ObjectType type;
        void* value;
    };

    const std::vector<KORVAPortTypeI*>& m_portTypes;
    RequestTarget m_request;
    std::vector<KORVA_Operation> m_candidates;
    std::vector<Parameter> m_parameters;  ///< of a reply
    ZELSmartPointer<KORVAPortTypeBinding> m_binding;
};

}  // namespace korva
