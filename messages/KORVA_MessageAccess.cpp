#include "korva/KORVA_MessageAccess.h"

#include "core/PathRoot.h"
#include "messages/ParameterWalk.h"

#include <zel/ZELFrame.h>

#include <utility>

namespace {

/// A message as the root of a path.
class MessageRoot final : public korva::PathRoot {
public:
    explicit MessageRoot(const KORVAMessageI& message)
        : m_message(const_cast<KORVAMessageI&>(message)) {}  // changed by store and clear only

    KORVA_Children children() const override {
        std::vector<KORVA_Child> parameters;
        korva::ParameterWalk walk(m_message);
        for (korva::Child parameter; walk.next(parameter);)
            parameters.emplace_back(parameter.name, parameter.type, parameter.value);
        return KORVA_Children(std::move(parameters));
    }
    std::optional<KORVA_Child> newElement() const override { return std::nullopt; }
    KORVASchemaTypeI* object() const override { return nullptr; }
    const char* className() const override { return m_message.getMessageName(); }
    void store(const KORVA_Child& child, void* value, ObjectType type) override {
        m_message.setChildObject(child.name().c_str(), value, type);
    }
    bool clear(const KORVA_Child& child) override {
        m_message.setChildObject(child.name().c_str(), nullptr, child.type());
        return true;
    }
    bool isReplaceable(const KORVA_Child&) const override { return true; }

private:
    KORVAMessageI& m_message;
};

}  // namespace

KORVA_Children KORVA_MessageAccess::children(const KORVAMessageI& message) {
    ZEL_TRY {
        return MessageRoot(message).children();
    }
    ZEL_CATCH("KORVA_MessageAccess::children");
}

KORVA_Child KORVA_MessageAccess::get(const KORVAMessageI& message, const KORVA_Path& path) {
    return path.get(MessageRoot(message));
}

std::optional<KORVA_Child> KORVA_MessageAccess::find(const KORVAMessageI& message,
                                                     const KORVA_Path& path) {
    return path.find(MessageRoot(message));
}

std::vector<KORVA_PathMatch> KORVA_MessageAccess::findAll(const KORVAMessageI& message,
                                                          const KORVA_Path& path) {
    return path.findAll(MessageRoot(message));
}

void KORVA_MessageAccess::set(KORVAMessageI& message, const KORVA_Path& path,
                              const KORVA_PathValue& value, KORVAObjectRegistryI& registry) {
    MessageRoot root(message);
    path.set(root, value, registry);
}
