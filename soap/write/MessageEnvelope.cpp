#include "soap/write/MessageEnvelope.h"

#include "soap/write/TextStreams.h"

#include <brim/BRIMOutputStream.h>
#include <zel/ZELAssert.h>

namespace korva {

namespace {

/// The place of what stands in the operation's own tags.
class OperationPlace final : public TextPlace {
public:
    explicit OperationPlace(std::string_view path) : m_path(path) {}
    std::string path() const override { return std::string(m_path); }

private:
    std::string_view m_path;
};

void put(BRIMOutputStream& stream, std::string_view token) {
    stream.write(token.data(), token.size());
}

}  // namespace

OperationElement::OperationElement(const char* name, std::string_view suffix,
                                   const char* pOperationNamespace)
    : m_namespace(pOperationNamespace) {
    if (name == nullptr || *name == '\0') return;
    m_path = '/';
    m_path += name;
    m_path += suffix;
}

void OperationElement::write(std::string_view text, BRIMOutputStream& stream,
                             bool replaceInvalidText) const {
    const OperationPlace place(m_path);
    InvalidText invalid(replaceInvalidText);
    invalid.setPlace(place);
    PlainTextStream checked(stream, invalid);
    checked.write(text.data(), text.size());
    checked.close();
}

void OperationElement::writeStart(BRIMOutputStream& stream, bool replaceInvalidText) const {
    if (!exists()) return;
    const char* const pOperationNamespace = m_namespace;
    ZEL_ASSERT_NAMED(pOperationNamespace, "An operation namespace must be given.");
    put(stream, "\t\t<rns1:");
    write(path().substr(1), stream, replaceInvalidText);
    put(stream, " xmlns:rns1=\"");
    write(pOperationNamespace, stream, replaceInvalidText);
    put(stream, "\">\n");
}

void OperationElement::writeEnd(BRIMOutputStream& stream, bool replaceInvalidText) const {
    if (!exists()) return;
    put(stream, "\t\t</rns1:");
    write(path().substr(1), stream, replaceInvalidText);
    put(stream, wire::tagEnd);
}

}  // namespace korva
