/// The body of an HTTP answer, as an output stream.
#pragma once

#include <brim/BRIMOutputStream.h>

#include <string>

namespace httplib {
class DataSink;
}

namespace live_call {

/// Sends what is written to it in chunks of 64 KB, as the client takes them.
class SinkStream final : public BRIMOutputStream {
public:
    SinkStream() = default;

    /// Where the bytes go. `sink` must live until `close`.
    void open(httplib::DataSink& sink);

    /// @throws BRIMStreamError the client is gone
    void write(const char* bytes, std::size_t length) override;

    /// Sends what is left, and the end.
    /// @throws BRIMStreamError as above
    void close() override;

private:
    void send();

    httplib::DataSink* m_sink = nullptr;
    std::string m_chunk;
};

}  // namespace live_call
