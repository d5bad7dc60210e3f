#include "korva/KORVA_PortType.h"

#include "messages/MessageDescriptor.h"
#include "messages/OperationAdvice.h"

#include <i18n/KORVAMessageId.h>
#include <korva/KORVAMessageParam.h>
#include <korva/KORVAPortTypeBinding.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>
#include <zel/ZELSmartPointer.h>

#include <algorithm>
#include <cstring>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>

using korva::OperationParameterRow;
using korva::OperationRow;
using korva::refuseOperation;
using ParamDescriptor = KORVAMessageFactory::KORVAParamDescriptor;
using Params = std::vector<KORVAMessageParam*>;

namespace {

/// Compares a key with the text that the pieces make together.
int compare(std::string_view key, std::initializer_list<std::string_view> pieces) {
    for (const std::string_view piece : pieces) {
        const std::string_view start = key.substr(0, piece.size());
        if (const int order = start.compare(piece)) return order;
        key.remove_prefix(start.size());
    }
    return key.empty() ? 0 : 1;
}

}  // namespace

KORVA_PortType::~KORVA_PortType() = default;

const char* KORVA_PortType::getName() const {
    return m_descriptor.name;
}

const char* KORVA_PortType::getBoundNamespace() const {
    return m_descriptor.boundNamespace;
}

// The first row is that of the null messages.

std::size_t KORVA_Operations::size() const {
    return m_portType->m_descriptor.operationCount - 1;
}

KORVA_Operation KORVA_Operations::at(const KORVA_PortType& portType, std::size_t position) {
    return {portType, portType.m_descriptor.operations[position + 1]};
}

KORVA_PortType::ObjectType KORVA_PortType::resolveOperationParamType(const char* pOperationName,
                                                                     const char* pParamName) const {
    ZEL_ASSERT(pOperationName);
    ZEL_ASSERT(pParamName);
    const std::initializer_list<std::string_view> pieces = {pOperationName, "-", pParamName};
    const auto* const end = m_descriptor.parameters + m_descriptor.parameterCount;
    const auto* const row = std::lower_bound(
        m_descriptor.parameters, end, pieces,
        [](const OperationParameterRow& entry, auto& key) { return compare(entry.key, key) < 0; });
    return row != end && compare(row->key, pieces) == 0 ? row->type : KORVASchemaTypeI::e_Unknown;
}

KORVAPortTypeBinding* KORVA_PortType::createPortTypeBinding(const char* pOperationName,
                                                            const Params& params) const {
    ZEL_ASSERT(pOperationName);
    const OperationRow* const row = findOperation(pOperationName, params);
    if (row == nullptr) refuseOperation(m_descriptor, pOperationName, params);
    ZEL_TRY {
        const ZELSmartPointer<KORVAMessageI> inputMessage(
            KORVAMessageFactory::getInstance().create(row->metadata.inputMessageType));
        for (const KORVAMessageParam* param : params)
            inputMessage->setChildObject(param->getName(), param->getParamValue(),
                                         param->getParamType());
        return bind(pOperationName, row->metadata, inputMessage.get());
    }
    ZEL_CATCH(nullptr);
}

KORVAPortTypeBinding* KORVA_PortType::createPortTypeBinding(
    const KORVAMessageI::MessageType& messageType) const {
    const OperationRow& row = operationOf(messageType);
    ZEL_TRY {
        const ZELSmartPointer<KORVAMessageI> inputMessage(
            KORVAMessageFactory::getInstance().create(messageType));
        return bind(row.operation, row.metadata, inputMessage.get());
    }
    ZEL_CATCH(nullptr);
}

KORVAPortTypeBinding* KORVA_PortType::createPortTypeBinding(KORVAMessageI& inputMessage,
                                                            KORVAMessageI& outputMessage) const {
    const OperationRow& row = operationOf(inputMessage.getMessageType());
    const OperationMetadata* const pOperationMetadata = &row.metadata;
    ZEL_ASSERT_NAMED(
        pOperationMetadata->outputMessageType == outputMessage.getMessageType(),
        "There is no defined binding between the requested input and output messages.");
    ZEL_TRY {
        return KORVAPortTypeBinding::create(row.operation, getBoundNamespace(),
                                            row.metadata.soapAction, *this, inputMessage,
                                            outputMessage);
    }
    ZEL_CATCH(nullptr);
}

KORVAPortTypeBinding* KORVA_PortType::createPortTypeBinding(KORVAMessageI* pInputMessage) const {
    ZEL_ASSERT(pInputMessage);
    // Found before a reference is held: a message that isn't ours to end survives the assertion.
    const OperationRow& row = operationOf(pInputMessage->getMessageType());
    ZEL_TRY {
        const ZELSmartPointer<KORVAMessageI> inputMessage(pInputMessage);
        return bind(row.operation, row.metadata, inputMessage.get());
    }
    ZEL_CATCH(nullptr);
}

/// Makes the output message too.
KORVAPortTypeBinding* KORVA_PortType::bind(const char* operationName,
                                           const OperationMetadata& metadata,
                                           KORVAMessageI* inputMessage) const {
    const ZELSmartPointer<KORVAMessageI> outputMessage(
        KORVAMessageFactory::getInstance().create(metadata.outputMessageType));
    return KORVAPortTypeBinding::create(operationName, getBoundNamespace(), metadata.soapAction,
                                        *this, inputMessage, outputMessage.get());
}

/// The first version of the operation that the parameters fit, or null.
const OperationRow* KORVA_PortType::findOperation(const char* name, const Params& params) const {
    const auto* const end = m_descriptor.operations + m_descriptor.operationCount;
    const auto* row = std::lower_bound(m_descriptor.operations, end, name,
                                       [](const OperationRow& entry, const char* key) {
                                           return std::strcmp(entry.operation, key) < 0;
                                       });
    for (; row != end && std::strcmp(row->operation, name) == 0; ++row)
        if (isSameParameterSignature(KORVAMessageFactory::getInstance().getParameterTypes(
                                         row->metadata.inputMessageType),
                                     params))
            return row;
    return nullptr;
}

/// The first operation with this request.
const OperationRow& KORVA_PortType::operationOf(KORVAMessageI::MessageType inputMessageType) const {
    const auto* const end = m_descriptor.operations + m_descriptor.operationCount;
    const auto* const row =
        std::find_if(m_descriptor.operations, end, [&](const OperationRow& entry) {
            return entry.metadata.inputMessageType == inputMessageType;
        });
    if (row == end)
        ZEL_ASSERT_NAMED(false, "There is no binding for the requested input/output message.");
    return *row;
}

bool KORVA_PortType::isSameParameterSignature(const ParamDescriptor* expectedParamList,
                                              const Params& params) {
    ZEL_ASSERT(expectedParamList);
    const ParamDescriptor* end = expectedParamList;
    while (end->name != nullptr)
        ++end;
    if (params.size() == static_cast<std::size_t>(end - expectedParamList))
        return std::equal(expectedParamList, end, params.begin(), isSameParameter);

    const ParamDescriptor* row = expectedParamList;
    for (const KORVAMessageParam* param : params) {
        while (row != end && !isSameParameter(*row, param))
            ++row;
        if (row == end) return false;
        ++row;
    }
    return true;
}

bool KORVA_PortType::isSameParameter(const ParamDescriptor& descriptor,
                                     const KORVAMessageParam* param2) {
    ZEL_ASSERT(param2);
    const char* const param1Name = descriptor.name;
    const char* const param2Name = param2->getName();
    ZEL_ASSERT(param1Name);
    ZEL_ASSERT(param2Name);
    if (std::strcmp(param1Name, param2Name) != 0) return false;

    const ObjectType type = param2->getParamType();
    if (type == descriptor.type) return true;
    if (!KORVASchemaTypesFactory::isGeneratedType(type)) return false;
    if (const void* const value = param2->getParamValue())
        return static_cast<const KORVASchemaTypeI*>(value)->isa(descriptor.type);
    ZEL_TRY {
        const std::unique_ptr<KORVASchemaTypeI> object(
            KORVASchemaTypesFactory::getInstance().create(type));
        return object->isa(descriptor.type);
    }
    ZEL_CATCH(nullptr);
}
