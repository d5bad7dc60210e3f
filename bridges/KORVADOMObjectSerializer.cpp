#include "korva/KORVADOMObjectSerializer.h"

#include "bridges/ElementReceiver.h"
#include "bridges/EventAttributes.h"
#include "bridges/FixedTexts.h"
#include "bridges/RootValue.h"
#include "bridges/WideSink.h"
#include "soap/write/ObjectEvents.h"

#include <i18n/KORVAI18NRes.h>
#include <zel/I18NString.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

/// Builds the elements. An element gets its place when it ends: the one above it has none yet, and
/// so the document need not look far for a node that would hold itself.
class DocumentReceiver final : public korva::ElementReceiver {
public:
    DocumentReceiver(ZELIDOM_Document& document, const char* targetNamespace)
        : m_document(document),
          m_targetNamespace(targetNamespace),
          m_busNamespace(korva::fixedText(KORVAI18NRes::eBusNamespace)) {}

    /// The root, once it has ended.
    const ZELIDOM_Element& root() const { return m_root; }

    void startRoot(korva::EventAttributes&) override {}

    void startElement(const korva::WideName& name,
                      const korva::EventAttributes& attributes) override {
        const bool isRoot = m_open.empty();
        if (!isRoot) appendText();
        ZELIDOM_Element element = m_document.createElementNS(
            isRoot ? m_targetNamespace.wide() : m_busNamespace, name.qName);
        if (isRoot) declareNamespaces(element);
        for (const korva::EventAttributes::Row& row : attributes)
            element.setAttributeNS(row.name.uri, row.name.qName, row.value);
        m_open.push_back(element);
    }

    void characters(const XMLCh* text, std::size_t length) override { m_text.append(text, length); }

    void endElement(const korva::WideName&) override {
        appendText();
        const ZELIDOM_Element element = m_open.back();
        m_open.pop_back();
        if (m_open.empty())
            m_root = element;
        else
            m_open.back().appendChild(element);
    }

private:
    void declareNamespaces(ZELIDOM_Element& element) const {
        const korva::Declarations declarations = korva::declarations();
        for (const korva::WideDeclaration& declaration : declarations) {
            const bool isBus = &declaration == declarations.end() - 1;
            if (isBus && m_targetNamespace.empty()) continue;
            // In the namespace of declarations: whoever writes the document out would not know
            // plain attributes for what they are, and declare the prefixes once more.
            element.setAttributeNS(declaration.name.uri, declaration.name.qName,
                                   isBus ? m_targetNamespace.wide() : declaration.uri);
        }
    }

    void appendText() {
        if (m_text.empty()) return;
        m_open.back().appendChild(m_document.createTextNode(m_text.c_str()));
        m_text.clear();
    }

    ZELIDOM_Document& m_document;
    const I18NString m_targetNamespace;
    const XMLCh* const m_busNamespace;
    std::vector<ZELIDOM_Element> m_open;
    std::u16string m_text;  ///< of the innermost open element
    ZELIDOM_Element m_root;
};

}  // namespace

KORVADOMObjectSerializer::KORVADOMObjectSerializer() : m_replaceInvalidText(false) {}

KORVADOMObjectSerializer::~KORVADOMObjectSerializer() = default;

void KORVADOMObjectSerializer::setReplaceInvalidText(bool replace) {
    m_replaceInvalidText = replace;
}

ZELIDOM_Element KORVADOMObjectSerializer::serialize(const void* object, ObjectType type,
                                                    const char* name, ZELIDOM_Document ownerDoc) {
    return serializeObj(object, type, name, std::move(ownerDoc),
                        KORVAI18NRes::getChar(KORVAI18NRes::eBusNamespace));
}

ZELIDOM_Element KORVADOMObjectSerializer::serializeObj(const void* object, ObjectType type,
                                                       const char* name, ZELIDOM_Document ownerDoc,
                                                       const char* targetNamespace) {
    ZEL_ASSERT(!ownerDoc.isNull());
    ZEL_ASSERT_NAMED(targetNamespace, "The 'targetNamespace' parameter to the method 'serializeObj' cannot be NULL.");
    ZEL_ASSERT(name);
    korva::assertWritable(object, type);
    ZEL_TRY {
        DocumentReceiver receiver(ownerDoc, targetNamespace);
        korva::WideSink sink(receiver, {}, m_replaceInvalidText);
        korva::ObjectEvents<korva::WideSink>(sink, false)
            .write(object, type, {korva::ElementName::Root, name}, true);
        return receiver.root();
    }
    ZEL_CATCH("KORVADOMObjectSerializer::serialize()");
}
