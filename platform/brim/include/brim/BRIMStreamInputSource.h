/// Lets Xerces-C parse what a stream gives.
#pragma once

#include <brim/BRIMExport.h>

#include <xercesc/sax/InputSource.hpp>

class BRIMInputStream;

/// The stream is not owned and must live as long as the parse; it can be parsed once. What its
/// `read` throws leaves the parser's `parse` as the same exception.
class BRIM_EXPORT BRIMStreamInputSource final : public xercesc::InputSource {
public:
    explicit BRIMStreamInputSource(BRIMInputStream& stream);
    /// What the parser gets is made of `memory`, which must live as long as the parser.
    BRIMStreamInputSource(BRIMInputStream& stream, xercesc::MemoryManager* memory);
    ~BRIMStreamInputSource() override;

    /// Called by the parser, which deletes the result.
    xercesc::BinInputStream* makeStream() const override;

private:
    BRIMInputStream& m_stream;
};
