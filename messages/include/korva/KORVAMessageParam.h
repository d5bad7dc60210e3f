/// One parameter of a call, before there is a message that could hold it.
#pragma once

#include <korva/KORVASchemaTypeI.h>

#include <cstddef>
#include <string>

/// A named value by which a port type chooses an operation, and which it then stores in the
/// operation's request. Readers keep what they build in the same form.
class KORVA_EXPORT KORVAMessageParam {
public:
    using ObjectType = KORVASchemaTypeI::ObjectType;

    /// Copies `name`; null leaves it empty. `value` isn't owned and may be null. What it points at
    /// follows from `type` as for KORVASchemaTypeI::setChildObject.
    /// @throws ZELOutOfMemoryError no memory is left
    KORVAMessageParam(const char* name, ObjectType type, void* value);
    /// The same for an object, or an array, of the schema.
    KORVAMessageParam(const char* name, ObjectType type, KORVASchemaTypeI* value);
    /// The same without a value.
    KORVAMessageParam(const char* name, ObjectType type, std::nullptr_t = nullptr);

    KORVAMessageParam(const KORVAMessageParam&) = delete;
    KORVAMessageParam& operator=(const KORVAMessageParam&) = delete;

    /// The value stays.
    virtual ~KORVAMessageParam();

    /// Null when the name is empty.
    const char* getName() const;

    ObjectType getParamType() const { return m_paramType; }

    void* getParamValue() const { return m_paramValue; }

    /// Gives the parameter the value that it lacks.
    /// @throws ZELAssertError it has one
    void setParamValue(void* value);

private:
    std::string m_name;
    ObjectType m_paramType;
    void* m_paramValue;
};
