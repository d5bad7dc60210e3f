/// The request of an operation that has no name.
#pragma once

#include <korva/KORVAMessageI.h>

/// The message "[Null]_Request": no parameters, and none tolerated. Made by its constructor only,
/// and bound by every port type to the empty operation name.
class KORVA_EXPORT KORVA_Null_Request : public KORVAMessageI {
public:
    KORVA_Null_Request();
    ~KORVA_Null_Request() override;

    MessageType getMessageType() const override;
    /// Appends nothing.
    void getChildObjectNames(std::vector<const char*>& names) const override;
    /// Null.
    void* getChildObject(const char* name, bool forWrite) override;
    /// e_Unknown.
    ObjectType getChildType(const char* name) const override;
    /// Does nothing for the empty name and refuses every other.
    void setChildObject(const char* name, void* value, const ObjectType& type) override;
    const char* getMessageName() const override;
};
