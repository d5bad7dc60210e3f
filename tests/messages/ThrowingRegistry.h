/// A registry that registers nothing.
#pragma once

#include <korva/KORVAObjectRegistryI.h>

namespace korva::test {

/// Calls `action`, which throws, for each pointer, so that the pointer stays its maker's.
template <class Action>
class ThrowingRegistry final : public KORVAObjectRegistryI {
public:
    explicit ThrowingRegistry(Action action) : m_action(action) {}

    void registerPointer(bool*, KORVADeleteMode) override { m_action(); }
    void registerPointer(char*, KORVADeleteMode) override { m_action(); }
    void registerPointer(float*, KORVADeleteMode) override { m_action(); }
    void registerPointer(int*, KORVADeleteMode) override { m_action(); }
    void registerPointer(KORVA_AttachmentContainerI*) override { m_action(); }
    void registerPointer(KORVA_CharStreamable*) override { m_action(); }
    void registerPointer(KORVAXSBase64Binary*) override { m_action(); }
    void registerPointer(ZELSmartPointer<KORVA_RefCount_ConstChar>*) override { m_action(); }
    void registerPointer(KORVA_String*) override { m_action(); }
    void registerPointer(std::string*) override { m_action(); }
    void registerPointer(BRIMOutputStream*) override { m_action(); }
    void registerPointer(I18NString*) override { m_action(); }
    void registerPointer(KORVASchemaTypeI*) override { m_action(); }
    void clean() override {}

private:
    Action m_action;
};

}  // namespace korva::test
