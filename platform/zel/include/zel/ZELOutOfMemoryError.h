/// The exception for exhausted memory. Nothing about it needs memory to succeed.
#pragma once

#include <zel/ZELExport.h>
#include <zel/ZELThrowable.h>

class ZEL_EXPORT ZELOutOfMemoryError : public ZELThrowable {
public:
    /// `text` may tell what the memory was for; null is the usual case.
    explicit ZELOutOfMemoryError(int errorCode = 0, const char* text = nullptr) noexcept;

    ZELOutOfMemoryError(const ZELOutOfMemoryError&) noexcept;
    ZELOutOfMemoryError& operator=(const ZELOutOfMemoryError&) noexcept;
    ~ZELOutOfMemoryError() override;

    [[noreturn]] void hurl(ZELFileLocation location, const char* function,
                           const char* macro) override;
    ZELOutOfMemoryError* clone() const override;
    const char* getThrowableName() const noexcept override;

    /// Empty if the error was made without a text; never null.
    const char* getText() const noexcept { return m_text.get(); }

protected:
    void describe(std::string& text) const override;

private:
    ZELText m_text;
};
