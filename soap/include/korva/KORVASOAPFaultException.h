/// The exception that carries a received fault to the caller.
#pragma once

#include <korva/KORVAExport.h>
#include <zel/ZELException.h>
#include <zel/ZELText.h>

#include <string>

class KORVAHalyardHeader;
class KORVAObjectRegistryI;
class KORVASOAPFault;

/// Raised when an envelope holds a fault instead of a reply. Each copy holds a reference to the
/// registry that owns fault and header, so that they can be read for as long as one of them lives.
class KORVA_EXPORT KORVASOAPFaultException : public ZELException {
public:
    /// @param header the bus header of the envelope, or null
    /// @param registry the owner of both; null if the caller keeps them alive
    KORVASOAPFaultException(KORVAHalyardHeader* header, KORVASOAPFault& fault,
                            KORVAObjectRegistryI* registry) noexcept;
    /// Shares header, fault and registry; the text of toString stays the original's own.
    KORVASOAPFaultException(const KORVASOAPFaultException& other) noexcept;
    KORVASOAPFaultException& operator=(const KORVASOAPFaultException& other) noexcept;
    /// Drops the reference to the registry, and whatever that throws.
    ~KORVASOAPFaultException() override;

    /// The bus header that came with the fault, or null.
    KORVAHalyardHeader* getHalyardHeader() const noexcept { return m_header; }
    KORVASOAPFault& getSOAPFault() const noexcept { return *m_fault; }
    /// The owner of header and fault, or null. Hold it in a ZELSmartPointer to keep them longer.
    KORVAObjectRegistryI* getObjectRegistry() const noexcept { return m_registry; }

    /// Sets `text` as KORVASOAPFault::getMessages does.
    /// @throws ZELOutOfMemoryError no memory is left
    void getSOAPFaultMessages(std::string& text) const;

    /// A copy on the heap, which the caller owns.
    /// @throws ZELOutOfMemoryError no memory is left
    KORVASOAPFaultException* clone() const override;

    [[noreturn]] void hurl(ZELFileLocation location, const char* function,
                           const char* macro) override;

    /// Name, error code, severity, the fault's messages (`zel::printable`) and the back trace in
    /// one line, in a form that looks like XML and is not. Lives until the next call or the end of
    /// the object. Does not fail: without memory, or when a streamed message cannot be read, it is
    /// the name alone.
    const char* toString() const override;

    /// "KORVASOAPFaultException".
    const char* getThrowableName() const noexcept override;

private:
    KORVAHalyardHeader* m_header;
    KORVASOAPFault* m_fault;
    KORVAObjectRegistryI* m_registry;  ///< a reference of this object's own
    mutable ZELText m_text;            ///< of the last toString
};
