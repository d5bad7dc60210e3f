#include "zel/ZELMessageComponents.h"

ZELMessageComponents::ZELMessageComponents() = default;
ZELMessageComponents::ZELMessageComponents(const ZELMessageComponents&) = default;
ZELMessageComponents::ZELMessageComponents(ZELMessageComponents&&) noexcept = default;
ZELMessageComponents& ZELMessageComponents::operator=(const ZELMessageComponents&) = default;
ZELMessageComponents& ZELMessageComponents::operator=(ZELMessageComponents&&) noexcept = default;
ZELMessageComponents::~ZELMessageComponents() = default;

ZELMessageComponents& ZELMessageComponents::operator<<(const ZELMessageParm& parm) {
    m_parms.append(parm);
    return *this;
}
