#include "bridges/ObjectModels.h"

#include <brim/BRIMGZIPInputStream.h>
#include <brim/BRIMMemoryInputStream.h>
#include <brim/BRIMMemoryOutputStream.h>
#include <i18n/KORVAI18NRes.h>
#include <korva/KORVAXSBase64Compressed.h>
#include <korva/KORVA_Streamable.h>
#include <tarn/TARN_Streamable.h>
#include <zel/ZELAssert.h>

#include <memory>
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

/// What gzip data expand to. They are taken from the stream by its own writing, which may be done
/// again, unlike reading from it.
void expand(const KORVA_Streamable& compressed, BRIMOutputStream& out) {
    BRIMMemoryOutputStream bytes;
    compressed >> bytes;
    BRIMMemoryInputStream source(bytes.str(), bytes.pcount());
    BRIMGZIPInputStream expanded(source);
    char piece[16384];
    for (;;) {
        const long long count = expanded.read(piece, sizeof piece);
        if (count <= 0) return;
        out.write(piece, static_cast<std::size_t>(count));
    }
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
    std::unique_ptr<Object> owned(Factory::getInstance().create(type));
    registry.registerPointer(owned.get());
    Object* const array = owned.release();
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

TARNSchemaTypeI* TarnModel::childArray(Object& target, const char* name, Registry&) {
    return static_cast<Object*>(target.getChildObject(name, true));
}

void TarnModel::writeBytes(const Base64Binary& value, BRIMOutputStream& out) {
    writeKept(value, out);
}

}  // namespace korva
