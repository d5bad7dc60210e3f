/// The growing byte buffer in which a reader collects text.
#pragma once

#include <korva/KORVAExport.h>
#include <zel/ZELByteBuffer.h>

/// A ZELByteBuffer whose interface is cut down to what the object model needs.
class KORVA_EXPORT KORVA_String : private ZELByteBuffer {
public:
    KORVA_String();
    ~KORVA_String() override;

    using ZELByteBuffer::appendChars;
    using ZELByteBuffer::pcount;
    using ZELByteBuffer::reset;
    using ZELByteBuffer::str;

    /// The buffer itself, as setChildObject takes it for text.
    ZELByteBuffer* buffer() { return this; }

    /// Removes leading and trailing blanks, tabs, LF, CR, VT and FF.
    void trim();
};
