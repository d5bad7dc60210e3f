/// The exception of documents: an operation that the DOM refuses, or a text that is no document.
#pragma once

#include <zel/ZELException.h>
#include <zelidom/ZELIDOMExport.h>

class ZELIDOM_EXPORT ZELIDOM_Error : public ZELException {
public:
    /// Copies the text.
    explicit ZELIDOM_Error(const char* text) noexcept;

    ZELIDOM_Error(const ZELIDOM_Error&) noexcept;
    ZELIDOM_Error& operator=(const ZELIDOM_Error&) noexcept;
    ~ZELIDOM_Error() override;

    [[noreturn]] void hurl(ZELFileLocation location, const char* function,
                           const char* macro) override;
    ZELIDOM_Error* clone() const override;
    const char* getThrowableName() const noexcept override;

    /// What happened, in the words of the parser or of the DOM. Never null.
    const char* getText() const noexcept { return getErrorCodeString(); }
};
