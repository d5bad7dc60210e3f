#include "brim/BRIMStreamInputSource.h"

#include <brim/BRIMInputStream.h>

#include <xercesc/util/BinInputStream.hpp>

namespace {

class StreamAdapter final : public xercesc::BinInputStream {
public:
    explicit StreamAdapter(BRIMInputStream& stream) noexcept : m_stream(stream) {}

    XMLFilePos curPos() const override { return m_position; }

    XMLSize_t readBytes(XMLByte* buffer, XMLSize_t size) override {
        const long long count = m_stream.read(reinterpret_cast<char*>(buffer), size);
        if (count <= 0) return 0;
        m_position += static_cast<XMLFilePos>(count);
        return static_cast<XMLSize_t>(count);
    }

    const XMLCh* getContentType() const override { return nullptr; }

private:
    BRIMInputStream& m_stream;
    XMLFilePos m_position = 0;
};

}  // namespace

BRIMStreamInputSource::BRIMStreamInputSource(BRIMInputStream& stream) : m_stream(stream) {}

BRIMStreamInputSource::BRIMStreamInputSource(BRIMInputStream& stream,
                                             xercesc::MemoryManager* memory)
    : InputSource(memory), m_stream(stream) {}

BRIMStreamInputSource::~BRIMStreamInputSource() = default;

xercesc::BinInputStream* BRIMStreamInputSource::makeStream() const {
    return new (getMemoryManager()) StreamAdapter(m_stream);
}
