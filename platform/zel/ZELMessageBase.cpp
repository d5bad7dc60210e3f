#include "zel/ZELMessageBase.h"

ZELMessageBase::ZELMessageBase(const I18NString& component, unsigned id)
    : m_component(component), m_id(id) {}

ZELMessageBase::ZELMessageBase(const ZELMessageBase&) = default;
ZELMessageBase::ZELMessageBase(ZELMessageBase&&) noexcept = default;
ZELMessageBase& ZELMessageBase::operator=(const ZELMessageBase&) = default;
ZELMessageBase& ZELMessageBase::operator=(ZELMessageBase&&) noexcept = default;
ZELMessageBase::~ZELMessageBase() = default;
