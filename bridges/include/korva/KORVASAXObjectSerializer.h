/// The serializer that replays objects as events.
#pragma once

#include <korva/KORVASAXObjectSerializerI.h>

class KORVA_EXPORT KORVASAXObjectSerializer : public KORVASAXObjectSerializerI {
public:
    KORVASAXObjectSerializer();
    ~KORVASAXObjectSerializer() override;

    void serialize(const void* object, ObjectType type, const char* name,
                   xercesc::ContentHandler& contentHandler) override;

    /// As KORVASOAPSerializer has it.
    void setReplaceInvalidText(bool replace);

protected:
    /// Whether any null object is told of as a nil element, instead of ending in an assertion.
    /// False unless a derived class sets it.
    bool m_writeNil;

private:
    bool m_replaceInvalidText;
};
