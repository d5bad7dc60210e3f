/// The serializer that builds documents in memory.
#pragma once

#include <korva/KORVADOMObjectSerializerI.h>

class KORVA_EXPORT KORVADOMObjectSerializer : public KORVADOMObjectSerializerI {
public:
    KORVADOMObjectSerializer();
    ~KORVADOMObjectSerializer() override;

    ZELIDOM_Element serialize(const void* object, ObjectType type, const char* name,
                              ZELIDOM_Document ownerDoc) override;

    /// The same with the new element in a namespace of the caller's; with the empty one it has
    /// none, and does not declare the bus namespace. Its children stay in the bus namespace.
    /// @throws ZELAssertError also if `targetNamespace` is null
    ZELIDOM_Element serializeObj(const void* object, ObjectType type, const char* name,
                                 ZELIDOM_Document ownerDoc, const char* targetNamespace);

    /// As KORVASOAPSerializer has it.
    void setReplaceInvalidText(bool replace);

private:
    bool m_replaceInvalidText;
};
