/// The library's exception.
#pragma once

#include <korva/KORVAExport.h>
#include <zel/ZELException.h>

/// A failure of the library: bad input, or a wrong type. It carries numbered messages with their
/// parameters (ZELMessageSet::getMessages) and the trace of its way up.
class KORVA_EXPORT KORVAException : public ZELException {
public:
    explicit KORVAException(int errorCode) noexcept;
    KORVAException(ZELSeverity severity, int errorCode) noexcept;
    explicit KORVAException(const char* text) noexcept;
    KORVAException(ZELSeverity severity, const char* text) noexcept;
    KORVAException(const KORVAException& other) noexcept;
    KORVAException& operator=(const KORVAException& other) noexcept;
    ~KORVAException() override;

    /// A copy on the heap, which the caller owns.
    /// @throws ZELOutOfMemoryError no memory is left
    KORVAException* clone() const override;

    /// "KORVAException".
    const char* getThrowableName() const noexcept override;

    [[noreturn]] void hurl(ZELFileLocation location, const char* function,
                           const char* macro) override;

protected:
    const char* findMessageText(const ZELMessage& message) const override;
};
