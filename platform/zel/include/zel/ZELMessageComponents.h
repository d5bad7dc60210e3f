/// The parameters of a numbered message, in the order in which they were streamed in.
#pragma once

#include <zel/ZELExport.h>
#include <zel/ZELList.h>
#include <zel/ZELMessageParm.h>

class ZEL_EXPORT ZELMessageComponents {
public:
    ZELMessageComponents();
    ZELMessageComponents(const ZELMessageComponents&);
    ZELMessageComponents(ZELMessageComponents&&) noexcept;
    ZELMessageComponents& operator=(const ZELMessageComponents&);
    ZELMessageComponents& operator=(ZELMessageComponents&&) noexcept;
    virtual ~ZELMessageComponents();

    ZELMessageComponents& operator<<(const ZELMessageParm& parm);

    /// The first one fills `{0}` of the message's text.
    const ZELList<ZELMessageParm>& getParms() const noexcept { return m_parms; }

private:
    ZELList<ZELMessageParm> m_parms;
};
