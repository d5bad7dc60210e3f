#include "korva/KORVATARNObjectDeserializer.h"

#include "bridges/ObjectConversion.h"

#include <zel/ZELFrame.h>

namespace {

using Conversion = korva::ObjectConversion<korva::TarnModel, korva::KorvaModel>;

/// What `action` makes of a new conversion.
template <class Action>
auto convert(KORVAObjectRegistryI& registry, Action action) {
    return korva::convert<Conversion>(registry, "KORVATARNObjectDeserializer::deserialize()",
                                      action);
}

}  // namespace

KORVATARNObjectDeserializer::KORVATARNObjectDeserializer() = default;

KORVATARNObjectDeserializer::~KORVATARNObjectDeserializer() = default;

KORVASchemaTypeI* KORVATARNObjectDeserializer::deserialize(const TARNSchemaTypeI* object,
                                                           KORVAObjectRegistryI& registry) {
    ZEL_ASSERT(object);
    return createKORVAFromTARN(*object, registry);
}

KORVASchemaTypeI* KORVATARNObjectDeserializer::createKORVAFromTARN(
    const TARNSchemaTypeI& source, KORVAObjectRegistryI& registry) const {
    return convert(registry,
                   [&](Conversion& conversion) { return &conversion.createFrom(source); });
}

KORVATARNObjectDeserializer::TargetType KORVATARNObjectDeserializer::getKORVATypeFromTARN(
    const TARNSchemaTypeI& source) const {
    return Conversion::targetTypeOf(source.getObjectType());
}

KORVASchemaTypeI* KORVATARNObjectDeserializer::createKORVAObject(
    TargetType type, KORVAObjectRegistryI& registry) const {
    return convert(registry,
                   [&](Conversion& conversion) { return &conversion.createObject(type); });
}

void KORVATARNObjectDeserializer::copyChildren(const TARNSchemaTypeI& source,
                                               KORVASchemaTypeI& target,
                                               KORVAObjectRegistryI& registry) const {
    convert(registry, [&](Conversion& conversion) { conversion.copyChildren(source, target); });
}

void KORVATARNObjectDeserializer::copyChild(KORVASchemaTypeI& target, const char* name,
                                            SourceType type, void* value,
                                            KORVAObjectRegistryI& registry) const {
    convert(registry,
            [&](Conversion& conversion) { conversion.copyChild(target, name, type, value); });
}

void KORVATARNObjectDeserializer::copyArrayType(KORVASchemaTypeI& target, const char* name,
                                                void* value, KORVAObjectRegistryI& registry) const {
    convert(registry, [&](Conversion& conversion) {
        conversion.copyArray(target, name, *static_cast<const TARNSchemaTypeI*>(value));
    });
}

void KORVATARNObjectDeserializer::copyNativeType(KORVASchemaTypeI& target, const char* name,
                                                 SourceType type, void* value,
                                                 KORVAObjectRegistryI& registry) const {
    convert(registry,
            [&](Conversion& conversion) { conversion.copyNative(target, name, type, value); });
}

void* KORVATARNObjectDeserializer::copyStringValue(const char* value, TargetType& type,
                                                   KORVAObjectRegistryI& registry) const {
    return convert(registry,
                   [&](Conversion& conversion) { return conversion.copyStringValue(value, type); });
}

void KORVATARNObjectDeserializer::copyStringType(KORVASchemaTypeI& target, const char* name,
                                                 const char* value,
                                                 KORVAObjectRegistryI& registry) const {
    convert(registry, [&](Conversion& conversion) { conversion.copyString(target, name, value); });
}

const char* KORVATARNObjectDeserializer::copyCharStreamable(const char* value,
                                                            KORVAObjectRegistryI& registry) const {
    return convert(registry,
                   [&](Conversion& conversion) { return conversion.copyCharStreamable(value); });
}

void KORVATARNObjectDeserializer::copyBase64Type(KORVASchemaTypeI& target, const char* name,
                                                 void* value,
                                                 KORVAObjectRegistryI& registry) const {
    convert(registry, [&](Conversion& conversion) {
        conversion.copyBase64(target, name, *static_cast<const TARNBase64Binary*>(value));
    });
}

void KORVATARNObjectDeserializer::copyGeneratedType(KORVASchemaTypeI& target, const char* name,
                                                    void* value,
                                                    KORVAObjectRegistryI& registry) const {
    convert(registry, [&](Conversion& conversion) {
        conversion.copyGenerated(target, name, *static_cast<const TARNSchemaTypeI*>(value));
    });
}

KORVASchemaTypeI* KORVATARNObjectDeserializer::getChildObject(
    KORVASchemaTypeI& target, const char* name, KORVAObjectRegistryI& registry) const {
    ZEL_TRY {
        return korva::KorvaModel::childArray(target, name, registry);
    }
    ZEL_CATCH("KORVATARNObjectDeserializer::getChildObject()");
}

void KORVATARNObjectDeserializer::copyUndocumentedFaultDetail(
    const TARNSchemaTypeI& source, KORVASchemaTypeI& target, KORVAObjectRegistryI& registry) const {
    convert(registry, [&](Conversion& conversion) {
        conversion.copyUndocumentedFaultDetail(source, target);
    });
}
