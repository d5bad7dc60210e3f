#include "bridges/ObjectModels.h"

#include "core/Expansion.h"

#include <brim/BRIMOutputStream.h>
#include <i18n/KORVAI18NRes.h>
#include <korva/KORVAXSBase64Compressed.h>
#include <korva/KORVA_Streamable.h>
#include <tarn/TARN_Streamable.h>
#include <zel/ZELAssert.h>
#include <zel/ZELOwner.h>

#include <string_view>

namespace korva {

namespace {

/// The bytes of a value, as they are kept.
template <class Binary>
void writeKept(const Binary& value, BRIMOutputStream& out) {
    if (const char* const bytes = value.str())
        out.write(bytes, value.pcount());
    else if (const auto* const streamable = value.streamable())
        *streamable >> out;
}

}  // namespace

void KorvaModel::assertKnown(ObjectType korvaType) {
    ZEL_ASSERT(korvaType != KORVASchemaTypeI::e_Unknown);
}

KORVASchemaTypeI* KorvaModel::childArray(Object& target, const char* name, Registry& registry) {
    const std::string_view child = name;
    const std::string_view detail = KORVAI18NRes::getView(KORVAI18NRes::eFaultDetail);
    const bool isUndocumented = child == undocumentedDetailName;
    if (!target.isa(fault) || (!isUndocumented && child != detail))
        return static_cast<Object*>(target.getChildObject(name, true));
    const ObjectType type =
        isUndocumented ? faultDetailArray : KORVASchemaTypeI::eKORVAFaultDetailArray;
    Object* const array = registry.own(ZELOwner<Object>(Factory::getInstance().create(type)));
    target.setChildObject(detail.data(), array, type, nullptr);
    return array;
}

void KorvaModel::writeBytes(const Base64Binary& value, BRIMOutputStream& out) {
    const auto* const compressed = dynamic_cast<const KORVAXSBase64Compressed*>(&value);
    if (compressed != nullptr && compressed->isCompressed() && value.streamable() != nullptr)
        expand(*value.streamable(), out);
    else
        writeKept(value, out);
}

void TarnModel::assertKnown(ObjectType tarnType) {
    ZEL_ASSERT(tarnType != TARNSchemaTypeI::e_Unknown);
}

void TarnModel::refuseCycle(const Object& root) {
    std::vector<const char*> names;
    const Cycle<Object> cycle = findCycle(root, [&](const Object& object, auto&& visit) {
        Walk walk(object, names);
        const char* name = nullptr;
        ObjectType type{};
        void* value = nullptr;
        while (walk.next(name, type, value))
            if (Factory::isGeneratedType(type))
                visit(walk.isArray() ? "item" : name, static_cast<const Object*>(value));
    });
    if (cycle.object == nullptr) return;
    const auto typeName = [](const Object& object) {
        return Factory::getInstance().objectTypeToXSIType(object.getObjectType());
    };
    raiseCycle(typeName(*cycle.object), cycle.name, typeName(*cycle.holder));
}

TARNSchemaTypeI* TarnModel::childArray(Object& target, const char* name, Registry&) {
    return static_cast<Object*>(target.getChildObject(name, true));
}

void TarnModel::writeBytes(const Base64Binary& value, BRIMOutputStream& out) {
    writeKept(value, out);
}

}  // namespace korva
