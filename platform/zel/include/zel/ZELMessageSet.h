/// The numbered messages of an exception, where a catcher reads ids and parameters.
#pragma once

#include <zel/ZELExport.h>
#include <zel/ZELList.h>
#include <zel/ZELMessage.h>
#include <zel/ZELSmartPointer.h>

/// Copies share the messages until one of them adds another, so copying can't fail.
class ZEL_EXPORT ZELMessageSet {
public:
    ZELMessageSet() noexcept;
    ZELMessageSet(const ZELMessageSet&) noexcept;
    ZELMessageSet& operator=(const ZELMessageSet&) noexcept;
    virtual ~ZELMessageSet();

    /// In the order in which they were added. Valid until the next `add` or the end of the object.
    const ZELList<ZELMessage>& getMessages() const noexcept;

protected:
    /// @throws std::bad_alloc no memory is left; the set is as it was
    void add(const ZELMessage& message);

private:
    class SharedMessages;
    ZELSmartPointer<SharedMessages> m_messages;
};
