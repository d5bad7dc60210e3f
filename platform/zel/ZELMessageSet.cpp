#include <zel/ZELMessageSet.h>

#include <new>
#include <utility>

ZELMessageSet::ZELMessageSet() noexcept = default;
ZELMessageSet::ZELMessageSet(const ZELMessageSet&) noexcept = default;
ZELMessageSet& ZELMessageSet::operator=(const ZELMessageSet&) noexcept = default;
ZELMessageSet::~ZELMessageSet() = default;

const ZELList<ZELMessage>& ZELMessageSet::getMessages() const noexcept {
    if (m_messages) return *m_messages;
    // Never destroyed, so that exceptions may be read until the very end of the process.
    alignas(ZELList<ZELMessage>) static unsigned char storage[sizeof(ZELList<ZELMessage>)];
    static const auto* none = new (storage) ZELList<ZELMessage>;
    return *none;
}

void ZELMessageSet::add(const ZELMessage& message) {
    // Other sets may share the list, so what is added goes into a list of this set's own.
    auto messages = m_messages ? std::make_shared<ZELList<ZELMessage>>(*m_messages)
                               : std::make_shared<ZELList<ZELMessage>>();
    messages->append(message);
    m_messages = std::move(messages);
}
