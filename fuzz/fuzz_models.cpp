// Documents in memory and the second object model, there and back.
#include "fuzz/Target.h"
#include "fuzz/Wire.h"

#include <korva/KORVADOMObjectDeserializer.h>
#include <korva/KORVADOMObjectSerializer.h>
#include <korva/KORVASAXObjectSerializer.h>
#include <korva/KORVASchemaTypeI.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVATARNObjectDeserializer.h>
#include <korva/KORVATARNObjectSerializer.h>
#include <tarn/TARNObjectRegistry.h>
#include <zelidom/ZELIDOM_Document.h>
#include <zelidom/ZELIDOM_Element.h>

#include <xercesc/sax2/DefaultHandler.hpp>

namespace {

using korva::fuzz::Registry;
using korva::fuzz::require;
using korva::fuzz::requireSame;

KORVASchemaTypeI* overDocument(const KORVASchemaTypeI& object, const Registry& registry) {
    const ZELIDOM_Document document = ZELIDOM_Document::create();
    const ZELIDOM_Element element =
        KORVADOMObjectSerializer().serialize(&object, object.getObjectType(), "bus:root", document);
    return KORVADOMObjectDeserializer().deserialize(element, registry.get());
}

KORVASchemaTypeI* overTarn(const KORVASchemaTypeI& object, const Registry& registry) {
    const ZELSmartPointer<TARNObjectRegistryI> tarn = TARNObjectRegistry::create();
    const TARNSchemaTypeI* const copy = KORVATARNObjectSerializer().serialize(&object, *tarn);
    return KORVATARNObjectDeserializer().deserialize(copy, *registry);
}

/// What is null is left out on the first way there and back, so the second is compared.
template <class Way>
void goTwice(const KORVASchemaTypeI& object, const Registry& registry, Way way) {
    const KORVASchemaTypeI* const first = way(object, registry);
    if (first == nullptr) {
        // Nothing names an array of a simple type, so a document can't tell that its root is one.
        require(KORVASchemaTypesFactory::isArrayType(object.getObjectType()),
                "an object comes back");
        return;
    }
    const KORVASchemaTypeI* const second = way(*first, registry);
    require(second != nullptr, "an object comes back again");
    requireSame(korva::fuzz::written(*second), korva::fuzz::written(*first),
                "an object comes back as it went");
}

}  // namespace

void korva::fuzz::attack(std::string_view input) {
    BRIMMemoryInputStream stream(input.data(), input.size());
    const ZELIDOM_Document document = ZELIDOM_Document::parse(stream);
    const Registry registry = makeRegistry();
    const KORVASchemaTypeI* const object =
        KORVADOMObjectDeserializer().deserialize(document.getDocumentElement(), registry.get());
    if (object == nullptr) return;
    goTwice(*object, registry, overTarn);
    goTwice(*object, registry, overDocument);
    xercesc::DefaultHandler handler;
    KORVASAXObjectSerializer().serialize(object, object->getObjectType(), "root", handler);
}
