/// A text in the form in which setChildObject takes it.
#pragma once

#include <zel/ZELByteBuffer.h>

#include <cstring>

namespace korva::test {

class TextBuffer : public ZELByteBuffer {
public:
    explicit TextBuffer(const char* text) { appendChars(text, std::strlen(text)); }
};

}  // namespace korva::test
