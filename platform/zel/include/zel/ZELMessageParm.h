/// One value that fills a place in the text of a numbered message.
#pragma once

#include <zel/I18NString.h>
#include <zel/ZELExport.h>

class ZEL_EXPORT ZELMessageParm {
public:
    ZELMessageParm(const I18NString& text);
    ZELMessageParm(const ZELMessageParm&);
    ZELMessageParm(ZELMessageParm&&) noexcept;
    ZELMessageParm& operator=(const ZELMessageParm&);
    ZELMessageParm& operator=(ZELMessageParm&&) noexcept;
    ~ZELMessageParm();

    /// UTF-8, never null; lives as long as the parameter.
    const char* getText() const { return m_text.utf8(); }

private:
    I18NString m_text;
};
