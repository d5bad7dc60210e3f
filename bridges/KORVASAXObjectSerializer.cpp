#include "korva/KORVASAXObjectSerializer.h"

#include "bridges/ElementReceiver.h"
#include "bridges/EventAttributes.h"
#include "bridges/FixedTexts.h"
#include "bridges/RootValue.h"
#include "bridges/WideSink.h"
#include "soap/write/ObjectEvents.h"

#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

#include <xercesc/sax2/ContentHandler.hpp>

namespace {

/// Hands on to a handler.
class HandlerReceiver final : public korva::ElementReceiver {
public:
    explicit HandlerReceiver(xercesc::ContentHandler& handler)
        : m_handler(handler), m_declarations(korva::declarations()) {}

    void startRoot(korva::EventAttributes& attributes) override {
        for (const korva::WideDeclaration& declaration : m_declarations) {
            m_handler.startPrefixMapping(declaration.name.localName, declaration.uri);
            attributes.add(declaration.name, declaration.uri);
        }
    }

    void startElement(const korva::WideName& name,
                      const korva::EventAttributes& attributes) override {
        m_handler.startElement(name.uri, name.localName, name.qName, attributes);
    }

    void characters(const XMLCh* text, std::size_t length) override {
        m_handler.characters(text, length);
    }

    void endElement(const korva::WideName& name) override {
        m_handler.endElement(name.uri, name.localName, name.qName);
    }

    void endRoot() {
        for (int i = korva::Declarations::count; i-- != 0;)
            m_handler.endPrefixMapping(m_declarations.rows[i].name.localName);
    }

private:
    xercesc::ContentHandler& m_handler;
    const korva::Declarations m_declarations;
};

}  // namespace

KORVASAXObjectSerializer::KORVASAXObjectSerializer()
    : m_writeNil(false), m_replaceInvalidText(false) {}

KORVASAXObjectSerializer::~KORVASAXObjectSerializer() = default;

void KORVASAXObjectSerializer::setReplaceInvalidText(bool replace) {
    m_replaceInvalidText = replace;
}

void KORVASAXObjectSerializer::serialize(const void* object, ObjectType type, const char* name,
                                         xercesc::ContentHandler& contentHandler) {
    ZEL_ASSERT(name);
    if (!m_writeNil) korva::assertWritable(object, type);
    ZEL_TRY {
        HandlerReceiver receiver(contentHandler);
        korva::WideSink sink(receiver, korva::childPrefix, m_replaceInvalidText);
        korva::ObjectEvents<korva::WideSink>(sink, false)
            .write(object, type, {korva::ElementName::Root, name}, true);
        receiver.endRoot();
        return;
    }
    ZEL_CATCH("KORVASAXObjectSerializer::serialize()");
}
