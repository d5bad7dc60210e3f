/// A call from a filled request to a read reply.
#pragma once

#include <cstddef>
#include <string>

class KORVAPortTypeBinding;

namespace live_call {

/// Calls a service at one address, and shows what goes out and what comes back.
class Caller {
public:
    explicit Caller(std::string url);

    /// Sends the binding's input message and reads the answer into its output message. Attachments
    /// of any size are taken: what is large goes to a temporary file, which lives as long as the
    /// output message's registry.
    /// @return how many bytes came over the wire
    /// @throws KORVASOAPFaultException the service answered with a fault
    /// @throws ZELThrowable any other failure
    unsigned long long call(KORVAPortTypeBinding& binding) const;

    /// The same with any text, which is shown as `title`, in the place of the envelope.
    unsigned long long send(const std::string& title, const std::string& envelope,
                            KORVAPortTypeBinding& binding) const;

    /// The highest memory that the server ever had, in KB.
    std::size_t peakMemoryOfServer() const;

private:
    std::string m_url;
};

/// The envelope of the binding's input message.
std::string envelopeOf(KORVAPortTypeBinding& binding);

}  // namespace live_call
