#include "messages/OperationAdvice.h"

#include "core/NearestName.h"
#include "core/NumberedError.h"
#include "messages/MessageDescriptor.h"

#include <i18n/KORVAMessageId.h>
#include <korva/KORVAException.h>
#include <korva/KORVAMessageParam.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <zel/ZELFrame.h>

#include <algorithm>
#include <cstring>
#include <span>
#include <string>
#include <string_view>

namespace korva {

namespace {

using Parameters = std::vector<KORVAMessageParam*>;
using Names = std::vector<const char*>;
using ParamDescriptor = KORVAMessageFactory::KORVAParamDescriptor;

/// A request may have any number of parameters; so many are told of.
constexpr std::size_t toldParameters = 10;

std::span<const ParamDescriptor> parametersOf(const OperationRow& row) {
    const ParamDescriptor* const first =
        KORVAMessageFactory::getInstance().getParameterTypes(row.metadata.inputMessageType);
    const ParamDescriptor* end = first;
    while (end->name != nullptr)
        ++end;
    return {first, end};
}

/// The type's text, or null: a parameter may have any number for a type.
const char* textOf(KORVASchemaTypeI::ObjectType type) {
    if (KORVASchemaTypesFactory::isGeneratedType(type)) {
        const TypeDescriptor* const row = findType(type);
        return row != nullptr ? row->xsiName : nullptr;
    }
    return type != KORVASchemaTypeI::eCharStreamable
               ? KORVASchemaTypesFactory::getInstance().objectTypeToXSIType(type)
               : nullptr;
}

/// "query: bus:search"
std::string described(const char* name, KORVASchemaTypeI::ObjectType type) {
    const char* const typeText = textOf(type);
    return typeText != nullptr ? std::string(name) + ": " + typeText : name;
}

/// The items with `", "` between them, "..." in place of those that are too many.
template <class Items, class Describe>
std::string listed(const Items& items, Describe describe) {
    std::string text;
    std::size_t count = 0;
    for (const auto& item : items) {
        if (count != 0) text += ", ";
        if (count++ == toldParameters) return text + "...";
        text += describe(item);
    }
    return text;
}

Names namesOf(std::span<const OperationRow> rows) {
    Names names;
    for (const OperationRow& row : rows)
        if (*row.operation != '\0') names.push_back(row.operation);
    return names;
}

/// The names of the parameters that some version has.
Names parameterNamesOf(std::span<const OperationRow> versions) {
    Names names;
    for (const OperationRow& version : versions)
        for (const ParamDescriptor& parameter : parametersOf(version))
            names.push_back(parameter.name);
    return names;
}

/// Each of the parameters that no version has, with the name that it was meant to be.
std::string unknownAmong(const Parameters& parameters, const Names& known) {
    Names unknown;
    for (const KORVAMessageParam* const parameter : parameters) {
        const std::string_view name(parameter->getName());
        if (std::find(known.begin(), known.end(), name) == known.end())
            unknown.push_back(parameter->getName());
        if (unknown.size() > toldParameters) break;
    }
    return listed(unknown, [&known](const char* name) {
        const char* const nearest = nearestName(name, known);
        std::string text = '"' + std::string(name) + '"';
        return nearest != nullptr ? text + " (nearest: \"" + nearest + "\")" : text;
    });
}

std::string describedVersions(std::span<const OperationRow> versions) {
    return listed(versions, [](const OperationRow& version) {
        const auto describe = [](const ParamDescriptor& parameter) {
            return described(parameter.name, parameter.type);
        };
        return '(' + listed(parametersOf(version), describe) + ')';
    });
}

std::string describedParameters(const Parameters& parameters) {
    return listed(parameters, [](const KORVAMessageParam* parameter) {
        return described(parameter->getName(), parameter->getParamType());
    });
}

/// Adds the advice, where there is any.
void addAdvice(KORVAException& exception, const PortTypeDescriptor& portType, const char* name,
               const Parameters& parameters) {
    const std::span<const OperationRow> rows(portType.operations, portType.operationCount);
    const auto isOther = [name](const OperationRow& row) {
        return std::strcmp(row.operation, name) != 0;
    };
    const auto first = std::find_if_not(rows.begin(), rows.end(), isOther);
    const std::span<const OperationRow> versions(first, std::find_if(first, rows.end(), isOther));
    if (versions.empty()) {
        if (const char* const nearest = nearestName(name, namesOf(rows)))
            addMessage(exception, {eKORVA_NearestOperation, {name, portType.name, nearest}});
        return;
    }
    const std::string unknown = unknownAmong(parameters, parameterNamesOf(versions));
    if (!unknown.empty()) {
        addMessage(exception, {eKORVA_NoSuchParameter, {name, unknown.c_str()}});
        return;
    }
    addMessage(exception, {eKORVA_NoSuchVersion,
                           {name, describedParameters(parameters).c_str(),
                            describedVersions(versions).c_str()}});
}

}  // namespace

void refuseOperation(const PortTypeDescriptor& portType, const char* name,
                     const Parameters& parameters) {
    std::string function;
    KORVAException exception(0);
    ZEL_TRY {
        function = portType.className;
        function += "::createPortTypeBinding";
        addMessage(exception, {eKORVA_NoSuchOperation, {name, portType.name}});
        addAdvice(exception, portType, name, parameters);
    }
    ZEL_CATCH(nullptr);
    exception.hurl(ZEL_LOCATION, function.c_str(), "ZEL_THROW");
}

}  // namespace korva
