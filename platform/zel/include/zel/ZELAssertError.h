/// The exception of a broken assertion: a bug in the caller, or in the library.
#pragma once

#include <zel/ZELExport.h>
#include <zel/ZELThrowable.h>

class ZEL_EXPORT ZELAssertError : public ZELThrowable {
public:
    /// Copies the text; null gives the empty text.
    ZELAssertError(ZELSeverity severity, int errorCode, const char* text) noexcept;

    /// The same with 0 for the severity: `eZELFatal`.
    ZELAssertError(int severity, int errorCode, const char* text) noexcept;

    /// Fatal, with error code 0, and a text that may be shared.
    explicit ZELAssertError(const ZELText& text) noexcept;

    ZELAssertError(const ZELAssertError&) noexcept;
    ZELAssertError& operator=(const ZELAssertError&) noexcept;
    ~ZELAssertError() override;

    [[noreturn]] void hurl(ZELFileLocation location, const char* function,
                           const char* macro) override;
    ZELAssertError* clone() const override;
    const char* getThrowableName() const noexcept override;

    /// The assertion as it stands in the source, such as `ZEL_ASSERT(name);`. Never null.
    const char* getText() const noexcept { return m_text.get(); }

protected:
    void describe(std::string& text) const override;

private:
    ZELText m_text;
};
