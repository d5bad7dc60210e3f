#include "zel/ZELMessageParm.h"

ZELMessageParm::ZELMessageParm(const I18NString& text) : m_text(text) {}
ZELMessageParm::ZELMessageParm(const ZELMessageParm&) = default;
ZELMessageParm::ZELMessageParm(ZELMessageParm&&) noexcept = default;
ZELMessageParm& ZELMessageParm::operator=(const ZELMessageParm&) = default;
ZELMessageParm& ZELMessageParm::operator=(ZELMessageParm&&) noexcept = default;
ZELMessageParm::~ZELMessageParm() = default;
