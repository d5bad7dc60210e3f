/// The exception of the second object model for what does not fit the schema.
#pragma once

#include <tarn/TARNExport.h>
#include <zel/ZELException.h>

class TARN_EXPORT TARNTypeError : public ZELException {
public:
    /// Copies the text.
    explicit TARNTypeError(const char* text) noexcept;

    TARNTypeError(const TARNTypeError&) noexcept;
    TARNTypeError& operator=(const TARNTypeError&) noexcept;
    ~TARNTypeError() override;

    [[noreturn]] void hurl(ZELFileLocation location, const char* function,
                           const char* macro) override;
    TARNTypeError* clone() const override;
    const char* getThrowableName() const noexcept override;

    /// What does not fit where, in English. Never null.
    const char* getText() const noexcept { return getErrorCodeString(); }
};
