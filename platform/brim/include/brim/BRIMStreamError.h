/// The exception of the streams: a failed read or write, or data that a filter can't decode.
#pragma once

#include <brim/BRIMExport.h>
#include <zel/ZELException.h>

class BRIM_EXPORT BRIMStreamError : public ZELException {
public:
    /// Copies the text.
    explicit BRIMStreamError(const char* text) noexcept;

    BRIMStreamError(const BRIMStreamError&) noexcept;
    BRIMStreamError& operator=(const BRIMStreamError&) noexcept;
    ~BRIMStreamError() override;

    [[noreturn]] void hurl(ZELFileLocation location, const char* function,
                           const char* macro) override;
    BRIMStreamError* clone() const override;
    const char* getThrowableName() const noexcept override;

    /// What happened, in English, with the operating system's text where it was the cause. Never
    /// null.
    const char* getText() const noexcept { return getErrorCodeString(); }
};
