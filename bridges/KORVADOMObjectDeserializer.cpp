#include "korva/KORVADOMObjectDeserializer.h"

#include "soap/read/ReadLimits.h"
#include "soap/read/Utf16.h"

#include <korva/KORVADOMToSAXAttributesImpl.h>
#include <korva/KORVANamespaceMapping.h>
#include <korva/KORVAObjectRegistryFactory.h>
#include <korva/KORVASchemaTypeIContentHandler.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVA_AttachmentHandler.h>
#include <zel/I18NConverter.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>
#include <zelidom/ZELIDOM_NamedNodeMap.h>
#include <zelidom/ZELIDOM_Node.h>

#include <xercesc/sax2/ContentHandler.hpp>

#include <string_view>
#include <vector>

namespace {

bool isElement(const ZELIDOM_Node& node) {
    return node.getNodeType() == ZELIDOM_Node::ELEMENT_NODE;
}

bool isText(const ZELIDOM_Node& node) {
    const ZELIDOM_Node::NodeType type = node.getNodeType();
    return type == ZELIDOM_Node::TEXT_NODE || type == ZELIDOM_Node::CDATA_SECTION_NODE;
}

/// The prefix that an attribute declares, empty for the default namespace; null if it is no
/// declaration. An attribute without a namespace has no local name, so its node name tells.
const XMLCh* declaredPrefix(const ZELIDOM_String& name) {
    constexpr std::string_view declaration = "xmlns";
    if (!korva::startsWith(name.wide(), declaration)) return nullptr;
    const XMLCh* const rest = name.wide() + declaration.size();
    if (*rest == 0) return rest;
    return *rest == u':' ? rest + 1 : nullptr;
}

/// Calls `action` with prefix and namespace for each declaration of an element.
template <class Action>
void forEachDeclaration(const ZELIDOM_Node& element, Action action) {
    const ZELIDOM_NamedNodeMap attributes = element.getAttributes();
    const std::size_t length = attributes.getLength();
    for (std::size_t i = 0; i < length; ++i) {
        const ZELIDOM_Node attribute = attributes.item(i);
        if (const XMLCh* const prefix = declaredPrefix(attribute.getNodeName()))
            action(prefix, attribute.getNodeValue().wide());
    }
}

/// The local name, or the node name of an element that has none.
const XMLCh* elementName(const ZELIDOM_Node& element) {
    const ZELIDOM_String localName = element.getLocalName();
    return localName.empty() ? element.getNodeName().wide() : localName.wide();
}

void startElement(const ZELIDOM_Node& element, xercesc::ContentHandler& handler) {
    forEachDeclaration(element, [&handler](const XMLCh* prefix, const XMLCh* uri) {
        handler.startPrefixMapping(prefix, uri);
    });
    const KORVADOMToSAXAttributesImpl attributes(element.getAttributes());
    handler.startElement(element.getNamespaceURI().wide(), elementName(element),
                         element.getNodeName().wide(), attributes);
}

void tellText(const ZELIDOM_Node& node, xercesc::ContentHandler& handler) {
    const ZELIDOM_String text = node.getNodeValue();
    handler.characters(text.wide(), text.wideLength());
}

void endElement(const ZELIDOM_Node& element, xercesc::ContentHandler& handler) {
    handler.endElement(element.getNamespaceURI().wide(), elementName(element),
                       element.getNodeName().wide());
    forEachDeclaration(element, [&handler](const XMLCh* prefix, const XMLCh*) {
        handler.endPrefixMapping(prefix);
    });
}

/// The reader, with what a document in memory asks of it besides.
class ContentHandler final : public KORVASchemaTypeIContentHandler {
public:
    using KORVASchemaTypeIContentHandler::KORVASchemaTypeIContentHandler;

    using KORVASchemaTypeIContentHandler::takesText;

    ObjectType getObjectType() const { return getParamType(); }
};

/// Opens what is declared on `element` and above it, outermost first.
class Scope final : public KORVAContentHandler {
public:
    Scope(const ZELIDOM_Element& element, I18NConverter& converter, std::size_t maximumDeclarations)
        : KORVAContentHandler(converter) {
        setMaximumDeclarations(maximumDeclarations);
        std::vector<ZELIDOM_Node> path;
        for (ZELIDOM_Node node = element; !node.isNull(); node = node.getParentNode())
            path.push_back(node);
        for (auto node = path.rbegin(); node != path.rend(); ++node)
            forEachDeclaration(*node, [this](const XMLCh* prefix, const XMLCh* uri) {
                addPrefix(mapping, prefix, uri);
            });
    }

    KORVANamespaceMapping mapping;
};

}  // namespace

KORVASchemaTypeI* KORVADOMObjectDeserializer::read(const ZELIDOM_Element& domIn,
                                                   KORVAObjectRegistryI* registry) const {
    if (m_attachmentHandler != nullptr) m_attachmentHandler->clear();
    I18NConverter converter;
    Scope scope(domIn, converter, m_maximumDeclarations);
    const KORVADOMToSAXAttributesImpl attributes(domIn.getAttributes());
    ContentHandler contentHandler(elementName(domIn), attributes, &scope.mapping, registry,
                                  converter, KORVASchemaTypeI::e_Unknown);
    contentHandler.setAttachmentHandler(m_attachmentHandler);
    contentHandler.setMaximumAttributes(m_maximumAttributes);
    contentHandler.setMaximumDeclarations(m_maximumDeclarations);
    contentHandler.setPolicy(m_policy, m_observer, m_maximumReferences);
    for (ZELIDOM_Node node = domIn.getFirstChild(); !node.isNull(); node = node.getNextSibling()) {
        if (isElement(node))
            replay(node, contentHandler);
        else if (isText(node) && contentHandler.takesText())
            tellText(node, contentHandler);
    }
    ZEL_ASSERT_NAMED(KORVASchemaTypesFactory::getInstance().isGeneratedType( contentHandler.getObjectType() ), "Only generated classes can be deserialized.");
    return static_cast<KORVASchemaTypeI*>(contentHandler.getParamValue());
}

KORVADOMObjectDeserializer::KORVADOMObjectDeserializer()
    : m_maximumAttributes(korva::ReadLimits().attributes),
      m_maximumDeclarations(korva::ReadLimits().declarations),
      m_maximumReferences(korva::ReadLimits().references) {}

KORVADOMObjectDeserializer::~KORVADOMObjectDeserializer() = default;

KORVASchemaTypeI* KORVADOMObjectDeserializer::deserialize(const ZELIDOM_Element& domIn,
                                                          KORVAObjectRegistryI* registry,
                                                          unsigned /*flags*/) {
    ZEL_ASSERT(!domIn.isNull());
    m_registry = nullptr;
    ZEL_TRY {
        if (registry != nullptr) return read(domIn, registry);
        const ZELSmartPointer<KORVAObjectRegistryI> own(
            KORVAObjectRegistryFactory::getInstance().create());
        KORVASchemaTypeI* const object = read(domIn, own.get());
        m_registry = own;
        return object;
    }
    ZEL_CATCH("KORVADOMObjectDeserializer::deserialize()");
}

void KORVADOMObjectDeserializer::setAttachmentHandler(KORVA_AttachmentHandler* handler) {
    m_attachmentHandler = handler;
}

void KORVADOMObjectDeserializer::replay(const ZELIDOM_Node& nodeIn,
                                        xercesc::ContentHandler& contentHandler) {
    ZEL_ASSERT(nodeIn.getNodeType() == ZELIDOM_Node::ELEMENT_NODE);
    startElement(nodeIn, contentHandler);
    ZELIDOM_Node element = nodeIn;  // the innermost that is open
    ZELIDOM_Node next = element.getFirstChild();
    for (;;) {
        while (!next.isNull() && !isElement(next)) {
            if (isText(next)) tellText(next, contentHandler);
            next = next.getNextSibling();
        }
        if (!next.isNull()) {
            startElement(next, contentHandler);
            element = next;
            next = element.getFirstChild();
            continue;
        }
        endElement(element, contentHandler);
        if (element == nodeIn) return;
        next = element.getNextSibling();
        element = element.getParentNode();
    }
}
