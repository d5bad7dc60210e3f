/// The serializer into the second object model.
#pragma once

#include <korva/KORVASchemaTypeI.h>
#include <korva/KORVATARNObjectSerializerI.h>
#include <tarn/TARNSchemaTypeI.h>

/// A class derived from it may copy parts: each protected operation copies what it is handed with
/// all that it holds, and fails as serialize does.
class KORVA_EXPORT KORVATARNObjectSerializer : public KORVATARNObjectSerializerI {
public:
    KORVATARNObjectSerializer();
    ~KORVATARNObjectSerializer() override;

    TARNSchemaTypeI* serialize(const KORVASchemaTypeI* object,
                               TARNObjectRegistryI& registry) override;

protected:
    // As published: the library itself calls the first alone.
    using SourceType = KORVASchemaTypeI::ObjectType;
    using TargetType = TARNSchemaTypeI::ObjectType;

    /// A new object with the children of `source`.
    TARNSchemaTypeI* createTARNFromKORVA(const KORVASchemaTypeI& source,
                                         TARNObjectRegistryI& registry) const;
    /// The type that an object for `source` has.
    TargetType getTarnTypeFromKORVA(const KORVASchemaTypeI& source) const;
    /// A new, empty object.
    TARNSchemaTypeI* createTARNObject(TargetType type, TARNObjectRegistryI& registry) const;
    /// All children.
    void copyChildren(const KORVASchemaTypeI& source, TARNSchemaTypeI& target,
                      TARNObjectRegistryI& registry) const;
    /// One child of any kind, as `source` gives it for the type.
    void copyChild(TARNSchemaTypeI& target, const char* name, SourceType type, void* value,
                   TARNObjectRegistryI& registry) const;
    /// A child that is an array.
    void copyArrayType(TARNSchemaTypeI& target, const char* name, void* value,
                       TARNObjectRegistryI& registry) const;
    /// A child of a plain type.
    void copyNativeType(TARNSchemaTypeI& target, const char* name, SourceType type, void* value,
                        TARNObjectRegistryI& registry) const;
    /// A copy of a text as setChildObject takes it; `type` is set to what it is.
    void* copyStringValue(const char* value, TargetType& type, TARNObjectRegistryI& registry) const;
    /// A child that is a text.
    void copyStringType(TARNSchemaTypeI& target, const char* name, const char* value,
                        TARNObjectRegistryI& registry) const;
    /// A copy of a streamed text, read out.
    const char* copyCharStreamable(const char* value, TARNObjectRegistryI& registry) const;
    /// A child that is a binary value.
    void copyBase64Type(TARNSchemaTypeI& target, const char* name, void* value,
                        TARNObjectRegistryI& registry) const;
    /// A child that is an object and no array.
    void copyGeneratedType(TARNSchemaTypeI& target, const char* name, void* value,
                           TARNObjectRegistryI& registry) const;
};
