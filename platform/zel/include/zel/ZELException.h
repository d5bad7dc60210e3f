/// The base of the exceptions that tell of bad input or a wrong state by numbered messages.
#pragma once

#include <zel/ZELExport.h>
#include <zel/ZELMessageSet.h>
#include <zel/ZELThrowable.h>

/// Made from an error code or an error text, then given its messages with `<<`, then thrown with
/// `ZEL_THROW`. Its usual severity is `eZELError`.
class ZEL_EXPORT ZELException : public ZELThrowable, public ZELMessageSet {
public:
    explicit ZELException(int errorCode) noexcept;
    ZELException(ZELSeverity severity, int errorCode) noexcept;

    /// The text becomes the error code string. It is copied; null gives the empty text.
    explicit ZELException(const char* text) noexcept;
    ZELException(ZELSeverity severity, const char* text) noexcept;

    ZELException(const ZELException&) noexcept;
    ZELException& operator=(const ZELException&) noexcept;
    ~ZELException() override;

    [[noreturn]] void hurl(ZELFileLocation location, const char* function,
                           const char* macro) override;
    ZELException* clone() const override;
    const char* getThrowableName() const noexcept override;
    const char* getErrorCodeString() const noexcept override;

    /// Adds a message.
    /// @throws ZELOutOfMemoryError no memory is left
    ZELException& operator<<(const ZELMessage& message);

protected:
    /// The catalogue's text for a message, with its parameters as `{0}`, `{1}` and so on, or null
    /// if it isn't known, which is what this class always says. A class that has a catalogue
    /// overrides this.
    virtual const char* findMessageText(const ZELMessage& message) const;

    void describe(std::string& text) const override;

private:
    ZELText m_text;
    bool m_fromText;
};
