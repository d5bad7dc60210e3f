/// Carries a standard exception out of the library in a `ZELThrowable`.
#pragma once

#include <zel/ZELExport.h>
#include <zel/ZELThrowable.h>

#include <exception>

class ZEL_EXPORT ZELStdExceptionError : public ZELThrowable {
public:
    /// Copies the text of `exception`.
    explicit ZELStdExceptionError(const std::exception& exception) noexcept;

    ZELStdExceptionError(const ZELStdExceptionError&) noexcept;
    ZELStdExceptionError& operator=(const ZELStdExceptionError&) noexcept;
    ~ZELStdExceptionError() override;

    [[noreturn]] void hurl(ZELFileLocation location, const char* function,
                           const char* macro) override;
    ZELStdExceptionError* clone() const override;
    const char* getThrowableName() const noexcept override;

    /// What the standard exception's `what()` gave. Never null.
    const char* getText() const noexcept { return m_text.get(); }

protected:
    void describe(std::string& text) const override;

private:
    ZELText m_text;
};
