/// A text of the second object model.
#pragma once

#include <tarn/TARNExport.h>
#include <zel/ZELByteBuffer.h>

/// A ZELByteBuffer whose interface is cut down to what texts need.
class TARN_EXPORT TARN_String : private ZELByteBuffer {
public:
    TARN_String();
    ~TARN_String() override;

    using ZELByteBuffer::appendChars;
    using ZELByteBuffer::pcount;
    using ZELByteBuffer::reset;
    using ZELByteBuffer::str;

    /// The buffer itself, as setChildObject takes it for text.
    ZELByteBuffer* buffer() { return this; }
};
