/// The base of everything that this family of libraries throws.
#pragma once

#include <zel/ZELExport.h>
#include <zel/ZELFileLocation.h>
#include <zel/ZELList.h>
#include <zel/ZELSeverity.h>
#include <zel/ZELText.h>

#include <string>

/// A failure with a back trace. Deliberately not a `std::exception`: one `catch (ZELThrowable&)`
/// gets all failures of the library, and nothing else.
///
/// Copying, `addBackTrace` and `hurl` work without free memory too; what can't be stored then is
/// left out. An object belongs to one thread at a time; `clone` carries a failure to another.
class ZEL_EXPORT ZELThrowable {
public:
    ZELThrowable(const ZELThrowable& other) noexcept;
    ZELThrowable& operator=(const ZELThrowable& other) noexcept;
    virtual ~ZELThrowable();

    /// Adds a line to the back trace, then throws a copy of this object as its dynamic type. Each
    /// class that derives from this one overrides it.
    [[noreturn]] virtual void hurl(ZELFileLocation location, const char* function,
                                   const char* macro) = 0;

    /// A copy on the heap, of the dynamic type, which the caller deletes.
    /// @throws ZELOutOfMemoryError no memory is left
    virtual ZELThrowable* clone() const = 0;

    /// The name of the dynamic type, a literal.
    virtual const char* getThrowableName() const noexcept = 0;

    /// The error code: in decimal digits, or the text that the object was made from. Never null.
    virtual const char* getErrorCodeString() const noexcept;

    /// All that the object can tell, as a text of several lines: its name, what happened, and the
    /// back trace. Never null; lives until the next call or the end of the object. Does not fail:
    /// without memory the text is short.
    virtual const char* toString() const;

    /// Appends "file(line) function macro: detail" to the back trace. `function`, `macro` and
    /// `detail` may be null and are then left out. Drops the line if there is no memory for it.
    void addBackTrace(ZELFileLocation location, const char* function, const char* macro,
                      const char* detail = nullptr) noexcept;

    /// The lines, the place of the throw first. They are this object's own: a copy has others.
    const ZELList<char*>& getBackTrace() const noexcept { return m_backTrace; }

    ZELSeverity getSeverity() const noexcept { return m_severity; }

    /// "debug", "info", "warn", "error" or "fatal"; "unknown" for any other value.
    static const char* getSeverityName(ZELSeverity severity) noexcept;

protected:
    ZELThrowable(ZELSeverity severity, int errorCode) noexcept;

    /// Appends what happened, without a line feed at the end, for `toString`. May throw.
    virtual void describe(std::string& text) const;

private:
    void copyBackTrace(const ZELThrowable& other) noexcept;
    void freeBackTrace() noexcept;

    ZELSeverity m_severity;
    char m_errorCode[12];
    ZELList<char*> m_backTrace;
    mutable ZELText m_description;
};
