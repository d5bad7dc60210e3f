/// The sending half of the transport.
#pragma once

#include <brim/BRIMInputStream.h>

#include <cstddef>
#include <memory>
#include <string>

namespace live_call {

/// One request, and its answer as a stream. The answer is fetched while it is read: what is not
/// read yet waits at the server, but for some 64 KB. No thread is needed for that.
class HttpCall final : public BRIMInputStream {
public:
    /// Posts an envelope with its SOAP action, and waits until the answer begins.
    /// @throws BRIMStreamError there is none, or it is neither a reply nor a fault
    HttpCall(const std::string& url, const std::string& action, const std::string& envelope);

    /// Gets what is at `url`.
    /// @throws BRIMStreamError as above
    explicit HttpCall(const std::string& url);

    ~HttpCall() override;

    /// 200, or 500 for a fault.
    long status() const;

    /// The header of that name; null if there is none.
    const char* contentType() const;

    /// How many bytes of the body have come so far.
    unsigned long long receivedBytes() const { return m_receivedBytes; }

    /// The answer's body.
    /// @throws BRIMStreamError the connection broke, or nothing came for too long
    long long read(char* buffer, std::size_t size) override;

private:
    static std::size_t receive(char* bytes, std::size_t, std::size_t count, void* call);

    void begin();
    void fetch();

    struct Handles;

    std::string m_request;
    std::string m_received;      ///< one piece of the answer
    std::size_t m_position = 0;  ///< in it
    unsigned long long m_receivedBytes = 0;
    bool m_isPaused = false;  ///< more came than was read
    bool m_isComplete = false;
    std::unique_ptr<Handles> m_handles;
};

}  // namespace live_call
