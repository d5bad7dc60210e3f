#include "korva/KORVATARNObjectSerializer.h"

#include "bridges/ObjectConversion.h"

#include <zel/ZELFrame.h>

namespace {

using Conversion = korva::ObjectConversion<korva::KorvaModel, korva::TarnModel>;

/// What `action` makes of a new conversion.
template <class Action>
auto convert(TARNObjectRegistryI& registry, Action action) {
    return korva::convert<Conversion>(registry, "KORVATARNObjectSerializer::serialize()", action);
}

}  // namespace

KORVATARNObjectSerializer::KORVATARNObjectSerializer() = default;

KORVATARNObjectSerializer::~KORVATARNObjectSerializer() = default;

TARNSchemaTypeI* KORVATARNObjectSerializer::serialize(const KORVASchemaTypeI* object,
                                                      TARNObjectRegistryI& registry) {
    ZEL_ASSERT(object);
    return createTARNFromKORVA(*object, registry);
}

TARNSchemaTypeI* KORVATARNObjectSerializer::createTARNFromKORVA(
    const KORVASchemaTypeI& source, TARNObjectRegistryI& registry) const {
    return convert(registry,
                   [&](Conversion& conversion) { return &conversion.createFrom(source); });
}

KORVATARNObjectSerializer::TargetType KORVATARNObjectSerializer::getTarnTypeFromKORVA(
    const KORVASchemaTypeI& source) const {
    return Conversion::targetTypeOf(source.getObjectType());
}

TARNSchemaTypeI* KORVATARNObjectSerializer::createTARNObject(TargetType type,
                                                             TARNObjectRegistryI& registry) const {
    return convert(registry,
                   [&](Conversion& conversion) { return &conversion.createObject(type); });
}

void KORVATARNObjectSerializer::copyChildren(const KORVASchemaTypeI& source,
                                             TARNSchemaTypeI& target,
                                             TARNObjectRegistryI& registry) const {
    convert(registry, [&](Conversion& conversion) { conversion.copyChildren(source, target); });
}

void KORVATARNObjectSerializer::copyChild(TARNSchemaTypeI& target, const char* name,
                                          SourceType type, void* value,
                                          TARNObjectRegistryI& registry) const {
    convert(registry,
            [&](Conversion& conversion) { conversion.copyChild(target, name, type, value); });
}

void KORVATARNObjectSerializer::copyArrayType(TARNSchemaTypeI& target, const char* name,
                                              void* value, TARNObjectRegistryI& registry) const {
    convert(registry, [&](Conversion& conversion) {
        conversion.copyArray(target, name, *static_cast<const KORVASchemaTypeI*>(value));
    });
}

void KORVATARNObjectSerializer::copyNativeType(TARNSchemaTypeI& target, const char* name,
                                               SourceType type, void* value,
                                               TARNObjectRegistryI& registry) const {
    convert(registry,
            [&](Conversion& conversion) { conversion.copyNative(target, name, type, value); });
}

void* KORVATARNObjectSerializer::copyStringValue(const char* value, TargetType& type,
                                                 TARNObjectRegistryI& registry) const {
    return convert(registry,
                   [&](Conversion& conversion) { return conversion.copyStringValue(value, type); });
}

void KORVATARNObjectSerializer::copyStringType(TARNSchemaTypeI& target, const char* name,
                                               const char* value,
                                               TARNObjectRegistryI& registry) const {
    convert(registry, [&](Conversion& conversion) { conversion.copyString(target, name, value); });
}

const char* KORVATARNObjectSerializer::copyCharStreamable(const char* value,
                                                          TARNObjectRegistryI& registry) const {
    return convert(registry,
                   [&](Conversion& conversion) { return conversion.copyCharStreamable(value); });
}

void KORVATARNObjectSerializer::copyBase64Type(TARNSchemaTypeI& target, const char* name,
                                               void* value, TARNObjectRegistryI& registry) const {
    convert(registry, [&](Conversion& conversion) {
        conversion.copyBase64(target, name, *static_cast<const KORVAXSBase64Binary*>(value));
    });
}

void KORVATARNObjectSerializer::copyGeneratedType(TARNSchemaTypeI& target, const char* name,
                                                  void* value,
                                                  TARNObjectRegistryI& registry) const {
    convert(registry, [&](Conversion& conversion) {
        conversion.copyGenerated(target, name, *static_cast<const KORVASchemaTypeI*>(value));
    });
}
