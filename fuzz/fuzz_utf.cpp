// Text between UTF-8 and UTF-16, in one piece and in several, and made fit for XML and for errors.
#include "fuzz/Target.h"

#include <brim/BRIMMemoryOutputStream.h>
#include <brim/BRIMXmlEncodeOutputStream.h>
#include <zel/I18NConverter.h>
#include <zel/I18NString.h>
#include <zel/ZELByteBuffer.h>
#include <zel/ZELPrintable.h>

#include <cstring>
#include <string>

namespace {

using korva::fuzz::require;

void fromUtf8(std::string_view text) {
    std::u16string wide;
    I18NConverter::appendUtf16(text.data(), text.size(), wide);
    const I18NString back(wide.data(), wide.size());
    const I18NString again(I18NString(back.utf8(), back.utf8Length()).wide(), wide.size());
    require(again == back, "valid text comes back as it went");
    require(wide.find(u'\uFFFD') != std::u16string::npos ||
                std::string_view(back.utf8(), back.utf8Length()) == text,
            "valid text is never changed");

    const std::string printable = zel::printable(text);
    require(printable.size() <= zel::longestPrintable + 64, "a text in an error is short");
    for (const char c : printable)
        require(static_cast<unsigned char>(c) >= ' ' && c != '\x7F',
                "and has no control character");

    BRIMMemoryOutputStream out;
    BRIMXmlEncodeOutputStream encoder(out);
    encoder.write(text.data(), text.size());
    encoder.close();
    require(out.pcount() >= text.size(), "markup is escaped, and nothing dropped");
}

void fromUtf16(const std::u16string& wide) {
    ZELByteBuffer whole;
    I18NConverter converter;
    converter.append(wide.data(), wide.size(), whole);
    converter.finish(whole);
    for (const std::size_t piece : {std::size_t{1}, std::size_t{3}}) {
        ZELByteBuffer pieces;
        for (std::size_t i = 0; i < wide.size(); i += piece)
            converter.append(wide.data() + i, std::min(piece, wide.size() - i), pieces);
        converter.finish(pieces);
        require(pieces.pcount() == whole.pcount() &&
                    std::memcmp(pieces.str(), whole.str(), whole.pcount()) == 0,
                "the size of the pieces plays no part");
    }
}

}  // namespace

void korva::fuzz::attack(std::string_view input) {
    fromUtf8(input);
    std::u16string wide(input.size() / 2, u'\0');
    if (!wide.empty()) std::memcpy(wide.data(), input.data(), wide.size() * sizeof(char16_t));
    fromUtf16(wide);
}
