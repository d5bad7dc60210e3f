// Uses the library on this project's own toolkit, texts and documents: a part of a message reaches
// the object that refers to it, an error is told in the words of our catalogue, and an object goes
// into one of our documents and back.
#include <brim/BRIMMemoryInputStream.h>
#include <halyard/HALYARDTKMessagePart.h>
#include <halyard/HALYARDTKMessageReader.h>
#include <korva/KORVABooleanProp.h>
#include <korva/KORVADOMObjectDeserializer.h>
#include <korva/KORVADOMObjectSerializer.h>
#include <korva/KORVAObjectRegistryFactory.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVASOAPFault.h>
#include <korva/KORVASchedule.h>
#include <korva/KORVAStringProp.h>
#include <korva/KORVA_AttachmentHandler.h>
#include <zel/ZELSmartPointer.h>
#include <zel/ZELThrowable.h>
#include <zelidom/ZELIDOM_Document.h>

#include <xercesc/util/PlatformUtils.hpp>

#include <cstdio>
#include <cstring>
#include <string>

namespace {

class OnePart : public HALYARDTKMessagePart {
public:
    const char* getContentId() override { return "<part>"; }
    bool isCompressed() override { return false; }
    BRIMInputStream& getStream() override { return m_stream; }

private:
    BRIMMemoryInputStream m_stream{"brought", 7};
};

class OnePartReader : public HALYARDTKMessageReader {
public:
    bool hasAttachments() override { return true; }
    bool hasNextPart() override { return !m_isGiven; }
    HALYARDTKMessagePart* getNextPart() override {
        m_isGiven = true;
        return &m_part;
    }
    void releasePart(HALYARDTKMessagePart*) override {}

private:
    OnePart m_part;
    bool m_isGiven = false;
};

bool fillsFromOurParts(KORVAObjectRegistryI& registry) {
    KORVAStringProp text;
    KORVA_AttachmentHandler attachments;
    attachments.registerHref("part", text, "value", KORVASchemaTypeI::eString, 0);
    OnePartReader reader;
    attachments.resolveReferences(reader, registry, nullptr);
    return text.getValue() && std::strcmp(text.getValue(), "brought") == 0 &&
           std::strcmp(HALYARDTKMessageReader::vendor(), "ours") == 0;
}

bool tellsInOurWords() {
    try {
        KORVASOAPFault().getChildType("nothing");
    } catch (const ZELThrowable& failure) {
        const std::string text = failure.toString();
        std::puts(text.c_str());
        return text.find("kein Kind nothing") != std::string::npos;
    }
    return false;
}

bool returnsFromOurDocument(KORVAObjectRegistryI& registry) {
    KORVASchedule schedule;
    schedule.getActive(&registry)->setValue(true);

    xercesc::DOMDocument* const document =
        xercesc::DOMImplementationRegistry::getDOMImplementation(u"Core")->createDocument();
    const ZELIDOM_Element element = KORVADOMObjectSerializer().serialize(
        &schedule, schedule.getObjectType(), "bus:schedule", ZELIDOM_Document(document));
    KORVADOMObjectDeserializer deserializer;
    auto* const read = dynamic_cast<KORVASchedule*>(deserializer.deserialize(element));
    const bool isActive = read && read->getActive() && *read->getActive()->getValue();
    document->release();
    return isActive;
}

}  // namespace

int main() {
    xercesc::XMLPlatformUtils::Initialize();
    const ZELSmartPointer<KORVAObjectRegistryI> registry(
        KORVAObjectRegistryFactory::getInstance().create());
    return fillsFromOurParts(*registry) && tellsInOurWords() && returnsFromOurDocument(*registry)
               ? 0
               : 1;
}
