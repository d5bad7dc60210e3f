#include "zel/ZELMessageSet.h"

#include <zel/ZELImmortal.h>
#include <zel/ZELReferenceCount.h>

#include <new>

class ZELMessageSet::SharedMessages final : public ZELReferenceCount {
public:
    ZELList<ZELMessage> list;
};

ZELMessageSet::ZELMessageSet() noexcept = default;
ZELMessageSet::ZELMessageSet(const ZELMessageSet&) noexcept = default;
ZELMessageSet& ZELMessageSet::operator=(const ZELMessageSet&) noexcept = default;
ZELMessageSet::~ZELMessageSet() = default;

const ZELList<ZELMessage>& ZELMessageSet::getMessages() const noexcept {
    if (m_messages) return m_messages->list;
    // Exceptions may be read until the very end of the process.
    using Messages = ZELList<ZELMessage>;
    return zel::immortal<const Messages>([](void* at) { return ::new (at) Messages; });
}

void ZELMessageSet::add(const ZELMessage& message) {
    // Other sets may share the list, so what is added goes into a list of this set's own.
    const ZELSmartPointer<SharedMessages> messages(m_messages ? new SharedMessages(*m_messages)
                                                              : new SharedMessages);
    messages->list.append(message);
    m_messages = messages;
}
