/// The deserializer of the second object model.
#pragma once

#include <korva/KORVASchemaTypeI.h>
#include <korva/KORVATARNObjectDeserializerI.h>
#include <tarn/TARNSchemaTypeI.h>

/// A class derived from it may copy parts: each protected operation copies what it is handed with
/// all that it holds, and fails as deserialize does.
class KORVA_EXPORT KORVATARNObjectDeserializer : public KORVATARNObjectDeserializerI {
public:
    KORVATARNObjectDeserializer();
    ~KORVATARNObjectDeserializer() override;

    KORVASchemaTypeI* deserialize(const TARNSchemaTypeI* object,
                                  KORVAObjectRegistryI& registry) override;

protected:
    // As published: the library itself calls the first alone.
    using SourceType = TARNSchemaTypeI::ObjectType;
    using TargetType = KORVASchemaTypeI::ObjectType;

    /// A new object with the children of `source`.
    KORVASchemaTypeI* createKORVAFromTARN(const TARNSchemaTypeI& source,
                                          KORVAObjectRegistryI& registry) const;
    /// The type that an object for `source` has.
    TargetType getKORVATypeFromTARN(const TARNSchemaTypeI& source) const;
    /// A new, empty object.
    KORVASchemaTypeI* createKORVAObject(TargetType type, KORVAObjectRegistryI& registry) const;
    /// All children.
    void copyChildren(const TARNSchemaTypeI& source, KORVASchemaTypeI& target,
                      KORVAObjectRegistryI& registry) const;
    /// One child of any kind, as `source` gives it for the type.
    void copyChild(KORVASchemaTypeI& target, const char* name, SourceType type, void* value,
                   KORVAObjectRegistryI& registry) const;
    /// A child that is an array.
    void copyArrayType(KORVASchemaTypeI& target, const char* name, void* value,
                       KORVAObjectRegistryI& registry) const;
    /// A child of a plain type.
    void copyNativeType(KORVASchemaTypeI& target, const char* name, SourceType type, void* value,
                        KORVAObjectRegistryI& registry) const;
    /// A copy of a text as setChildObject takes it; `type` is set to what it is.
    void* copyStringValue(const char* value, TargetType& type,
                          KORVAObjectRegistryI& registry) const;
    /// A child that is a text.
    void copyStringType(KORVASchemaTypeI& target, const char* name, const char* value,
                        KORVAObjectRegistryI& registry) const;
    /// A copy of a streamed text, read out.
    const char* copyCharStreamable(const char* value, KORVAObjectRegistryI& registry) const;
    /// A child that is a binary value.
    void copyBase64Type(KORVASchemaTypeI& target, const char* name, void* value,
                        KORVAObjectRegistryI& registry) const;
    /// A child that is an object and no array.
    void copyGeneratedType(KORVASchemaTypeI& target, const char* name, void* value,
                           KORVAObjectRegistryI& registry) const;
    /// The array that the child array `name` of `target` is copied into. A fault gets a new one
    /// under "detail" and "undocumentedDetail".
    KORVASchemaTypeI* getChildObject(KORVASchemaTypeI& target, const char* name,
                                     KORVAObjectRegistryI& registry) const;
    /// The texts and messages of a detail that no schema describes.
    void copyUndocumentedFaultDetail(const TARNSchemaTypeI& source, KORVASchemaTypeI& target,
                                     KORVAObjectRegistryI& registry) const;
};
