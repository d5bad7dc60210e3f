#include "zel/I18NConverter.h"

#include "platform/zel/Utf.h"

#include <zel/ZELByteBuffer.h>
#include <zel/ZELFrame.h>

#include <string_view>

using namespace zel::utf;

bool I18NConverter::toUtf8(const char16_t* text, std::size_t length, char* buffer, std::size_t size,
                           std::size_t* written) noexcept {
    // From the cheapest test to the exact one; no unit gives more than three bytes.
    const bool fits = (length + 1) * 3 < size || encodedBound(text, length, m_pending) < size ||
                      encodedLength(text, length, m_pending) < size;
    if (!fits) return false;
    char* end = encode(text, length, m_pending, buffer);
    *end = '\0';
    if (written) *written = static_cast<std::size_t>(end - buffer);
    return true;
}

bool I18NConverter::toUtf8(const char16_t* text, char* buffer, std::size_t size) noexcept {
    return toUtf8(text, std::char_traits<char16_t>::length(text), buffer, size);
}

char* I18NConverter::toUtf8(const char16_t* text, std::size_t length) {
    ZEL_TRY {
        char* result = new char[encodedBound(text, length, m_pending) + 1];
        *encode(text, length, m_pending, result) = '\0';
        return result;
    }
    ZEL_CATCH("I18NConverter::toUtf8");
}

char* I18NConverter::toUtf8(const char16_t* text) {
    return toUtf8(text, std::char_traits<char16_t>::length(text));
}

void I18NConverter::append(const char16_t* text, std::size_t length, ZELByteBuffer& buffer) {
    if (length == 0) return;
    std::size_t ascii = 0;
    if (m_pending == 0) {
        ascii = narrowAscii(text, length, buffer.extend(length));
        if (ascii == length) {
            buffer.commit(length);
            return;
        }
        // Nothing is kept before there is room for the rest, so that a failure leaves no half
        // piece behind; writing the first half again is cheap.
        buffer.commit(0);
    }
    const std::size_t bound = ascii + encodedBound(text + ascii, length - ascii, m_pending);
    char* begin = buffer.extend(bound);
    char* end = encode(text, length, m_pending, begin);
    buffer.commit(static_cast<std::size_t>(end - begin));
}

void I18NConverter::finish(ZELByteBuffer& buffer) {
    if (m_pending == 0) return;
    char bytes[3];
    buffer.appendChars(bytes, static_cast<std::size_t>(encodeReplacement(bytes) - bytes));
    m_pending = 0;
}

std::string I18NConverter::utf8(std::u16string_view text) {
    ZEL_TRY {
        // A high surrogate at the end is what a pending one gives: three bytes more.
        std::string result(encodedBound(text.data(), text.size(), 0) + 3, '\0');
        char16_t pending = 0;
        char* end = encode(text.data(), text.size(), pending, result.data());
        if (pending != 0) end = encodeReplacement(end);
        result.resize(static_cast<std::size_t>(end - result.data()));
        return result;
    }
    ZEL_CATCH("I18NConverter::utf8");
}

bool I18NConverter::toUtf16(const char* text, std::size_t length, char16_t* buffer,
                            std::size_t size, std::size_t* written) noexcept {
    // No byte gives more than one unit.
    if (length >= size && decodedLength(text, length) >= size) return false;
    char16_t* end = decode(text, length, buffer);
    *end = u'\0';
    if (written) *written = static_cast<std::size_t>(end - buffer);
    return true;
}

char16_t* I18NConverter::toUtf16(const char* text, std::size_t length) {
    ZEL_TRY {
        auto* result = new char16_t[length + 1];
        *decode(text, length, result) = u'\0';
        return result;
    }
    ZEL_CATCH("I18NConverter::toUtf16");
}

void I18NConverter::appendUtf16(const char* text, std::size_t length, std::u16string& result) {
    ZEL_TRY {
        const std::size_t before = result.size();
        result.resize(before + length);
        const char16_t* end = decode(text, length, result.data() + before);
        result.resize(static_cast<std::size_t>(end - result.data()));
    }
    ZEL_CATCH("I18NConverter::appendUtf16");
}
