/// What the generated messages have in common.
#pragma once

#include <korva/KORVAMessageI.h>

namespace korva {
class ParameterWalk;
struct MessageDescriptor;
struct Record;
}  // namespace korva

/// The implementation behind every generated message: it answers the contract of KORVAMessageI from
/// the message's table of parameters.
class KORVA_EXPORT KORVA_MessageObject : public KORVAMessageI {
public:
    /// Frees the record of parameters, not what they point at.
    ~KORVA_MessageObject() override;

    MessageType getMessageType() const override;
    void getChildObjectNames(std::vector<const char*>& names) const override;
    void* getChildObject(const char* name, bool forWrite) override;
    ObjectType getChildType(const char* name) const override;
    void setChildObject(const char* name, void* value, const ObjectType& type) override;
    const char* getMessageName() const override;

protected:
    /// Takes the record of the message's parameters.
    explicit KORVA_MessageObject(korva::Record* record) noexcept : m_pPrivateData(record) {}

    virtual const korva::MessageDescriptor& descriptor() const = 0;

    korva::Record* m_pPrivateData;

private:
    friend class korva::ParameterWalk;
};
