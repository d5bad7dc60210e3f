/// A document that refers to attachments, and its value.
#pragma once

#include "tests/soap/Reading.h"

#include <korva/KORVANamespaceMapping.h>
#include <korva/KORVASchemaTypeIContentHandler.h>
#include <korva/KORVA_AttachmentHandler.h>
#include <zel/I18NConverter.h>

#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>

#include <memory>
#include <stdexcept>
#include <string>

namespace korva::test {

/// Reads a document of the type `type` ("bus:provider"). What it holds lives as long as this
/// object.
class ReferringDocument {
public:
    ReferringDocument(const std::string& type, const std::string& content)
        : registry(KORVAObjectRegistryFactory::getInstance().create()) {
        KORVANamespaceMapping mapping;
        I18NConverter converter;
        void* root = nullptr;
        KORVASchemaTypeIContentHandler handler(&root, &mapping, registry.get(), converter);
        handler.setAttachmentHandler(&attachments);
        const std::string text = document(type, content);
        const xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(text.data()),
                                                text.size(), "");
        const std::unique_ptr<xercesc::SAX2XMLReader> parser(
            xercesc::XMLReaderFactory::createXMLReader());
        parser->setContentHandler(&handler);
        parser->parse(source);
        m_root = static_cast<KORVASchemaTypeI*>(root);
    }

    bool resolve(HALYARDTKMessageReader& reader,
                 KORVA_AttachmentHandler::ContainerFactory factory = nullptr) {
        return attachments.resolveReferences(reader, *registry, factory);
    }

    /// The root, which must be an X.
    template <class X>
    X& as() const {
        if (m_root == nullptr || m_root->getObjectType() != X().getObjectType())
            throw std::runtime_error("the document holds another object");
        return static_cast<X&>(*m_root);
    }

    ZELSmartPointer<KORVAObjectRegistryI> registry;
    KORVA_AttachmentHandler attachments;

private:
    KORVASchemaTypeI* m_root = nullptr;
};

}  // namespace korva::test
