/// The name of a message: a component's catalogue, and a number in it.
#pragma once

#include <zel/I18NString.h>
#include <zel/ZELExport.h>
#include <zel/ZELMessageComponents.h>

class ZEL_EXPORT ZELMessageBase : public ZELMessageComponents {
public:
    ZELMessageBase(const I18NString& component, unsigned id);
    ZELMessageBase(const ZELMessageBase&);
    ZELMessageBase(ZELMessageBase&&) noexcept;
    ZELMessageBase& operator=(const ZELMessageBase&);
    ZELMessageBase& operator=(ZELMessageBase&&) noexcept;
    ~ZELMessageBase() override;

    unsigned getId() const noexcept { return m_id; }

    /// UTF-8, never null; lives as long as the message.
    const char* getComponent() const { return m_component.utf8(); }

private:
    I18NString m_component;
    unsigned m_id;
};
