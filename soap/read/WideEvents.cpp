#include "soap/read/WideEvents.h"

#include "soap/read/Utf16.h"

#include <algorithm>

namespace korva {

namespace {

/// How many units of a text are converted at a time.
constexpr XMLSize_t pieceUnits = 2048;

bool isDeclaration(std::string_view prefix, std::string_view localName, const XMLCh* qName) {
    constexpr std::string_view declaration = "xmlns";
    if (prefix == declaration || (prefix.empty() && localName == declaration)) return true;
    return startsWith(qName, "xmlns:") || (startsWith(qName, declaration) && qName[5] == 0);
}

void assign(std::string& value, const XMLCh* text) {
    const std::size_t units = text != nullptr ? std::char_traits<XMLCh>::length(text) : 0;
    value.resize(3 * units + 1);
    std::size_t length = 0;
    if (units != 0) I18NConverter().toUtf8(text, units, value.data(), value.size(), &length);
    value.resize(length);
}

}  // namespace

/// What stands before the colon of a qualified name.
std::string_view WideEvents::prefixOf(const XMLCh* qName, const XMLCh* localName) {
    if (qName == nullptr || qName == localName) return {};
    const std::u16string_view name(qName);
    const std::size_t colon = name.find(u':');
    if (colon == std::u16string_view::npos) return {};
    return m_names.find(std::u16string(name.substr(0, colon)).c_str());
}

Element WideEvents::element(const XMLCh* uri, const XMLCh* localName, const XMLCh* qName,
                            const xercesc::Attributes& attributes) {
    const XMLSize_t count = attributes.getLength();
    if (m_values.size() < count) m_values.resize(count);
    m_attributes.clear();
    for (XMLSize_t i = 0; i != count; ++i) {
        const std::string_view name = m_names.find(attributes.getLocalName(i));
        const std::string_view prefix =
            prefixOf(attributes.getQName(i), attributes.getLocalName(i));
        if (isDeclaration(prefix, name, attributes.getQName(i))) continue;
        assign(m_values[i], attributes.getValue(i));
        m_attributes.push_back({prefix, name, m_names.find(attributes.getURI(i)), m_values[i]});
    }
    return {prefixOf(qName, localName), m_names.find(localName), m_names.find(uri), m_attributes};
}

void WideEvents::text(const XMLCh* text, XMLSize_t length, DocumentReceiver& receiver) {
    // No unit gives more than three bytes, and half a character may be waiting.
    char piece[3 * pieceUnits + 4];
    for (XMLSize_t done = 0; done != length;) {
        const XMLSize_t units = std::min(length - done, pieceUnits);
        std::size_t size = 0;
        m_converter.toUtf8(text + done, units, piece, sizeof piece, &size);
        done += units;
        if (size != 0) receiver.text({piece, size});
    }
    // Whether text may stand here is asked for an empty one and for half a character, too.
    if (length == 0 || m_converter.isPending()) receiver.text({});
}

void WideEvents::endText(DocumentReceiver& receiver) {
    if (!m_converter.isPending()) return;
    m_converter.reset();
    receiver.text("\xEF\xBF\xBD");
}

}  // namespace korva
