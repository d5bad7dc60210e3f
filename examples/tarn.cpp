// Copies an object into the platform's second object model, adds to it there, and copies it back.
#include <korva/KORVABooleanProp.h>
#include <korva/KORVANmtokenProp.h>
#include <korva/KORVAObjectRegistry.h>
#include <korva/KORVASchedule.h>
#include <korva/KORVATARNObjectDeserializer.h>
#include <korva/KORVATARNObjectSerializer.h>
#include <tarn/TARNObjectRegistry.h>
#include <tarn/TARNSchemaTypesFactory.h>
#include <tarn/TARN_String.h>
#include <zel/ZELOwner.h>
#include <zel/ZELSmartPointer.h>

#include <cstring>
#include <iostream>
#include <vector>

namespace {

/// A new property with a text, as the child `name` of `object`.
void setText(TARNSchemaTypeI& object, const char* name, const char* text,
             TARNObjectRegistryI& registry) {
    const TARNSchemaTypeI::ObjectType type = object.getChildType(name);
    TARNSchemaTypeI* const property =
        registry.own(ZELOwner(TARNSchemaTypesFactory::getInstance().create(type)));
    auto* const value = registry.make<TARN_String>();
    value->appendChars(text, std::strlen(text));
    property->setChildObject("value", value->buffer(), TARNSchemaTypeI::eString, nullptr);
    object.setChildObject(name, property, type, nullptr);
}

}  // namespace

int main() {
    const ZELSmartPointer<KORVAObjectRegistry> registry = KORVAObjectRegistry::create();
    const ZELSmartPointer<TARNObjectRegistry> tarnRegistry = TARNObjectRegistry::create();

    KORVASchedule schedule;
    schedule.getActive(registry.get())->setValue(true);
    schedule.getDailyPeriod(registry.get())->setValue("hour");

    TARNSchemaTypeI& copy = *KORVATARNObjectSerializer().serialize(&schedule, *tarnRegistry);
    setText(copy, "endType", "indefinite", *tarnRegistry);

    const TARNSchemaTypesFactory& factory = TARNSchemaTypesFactory::getInstance();
    std::cout << factory.objectTypeToXSIType(copy.getObjectType()) << '\n';
    std::vector<const char*> names;
    copy.getChildObjectNames(names, false);
    for (const char* const name : names)
        std::cout << "  " << name << ": " << factory.objectTypeToXSIType(copy.getChildType(name))
                  << '\n';

    const auto& read =
        static_cast<KORVASchedule&>(*KORVATARNObjectDeserializer().deserialize(&copy, *registry));
    std::cout << "active:      " << (*read.getActive()->getValue() ? "yes" : "no") << '\n'
              << "dailyPeriod: " << read.getDailyPeriod()->getValue() << '\n'
              << "endType:     " << read.getEndType()->getValue() << '\n';
}
