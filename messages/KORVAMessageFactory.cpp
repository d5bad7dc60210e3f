#include "korva/KORVAMessageFactory.h"

#include "messages/MessageDescriptor.h"

#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>
#include <zel/ZELImmortal.h>

#include <algorithm>
#include <new>

namespace {

/// The row of a message of the schema, or null.
const korva::MessageTypeRow* findMessage(KORVAMessageI::MessageType type) {
    const auto* const end = korva::messageTypes + korva::messageTypeCount;
    const auto* const row = std::lower_bound(
        korva::messageTypes, end, type,
        [](const korva::MessageTypeRow& entry, int key) { return entry.type < key; });
    return row != end && row->type == type ? row : nullptr;
}

}  // namespace

KORVAMessageFactory::~KORVAMessageFactory() = default;

KORVAMessageFactory& KORVAMessageFactory::getInstance() {
    return zel::immortal<KORVAMessageFactory>(
        [](void* at) { return ::new (at) KORVAMessageFactory; });
}

KORVAMessageI* KORVAMessageFactory::create(const KORVAMessageI::MessageType& msgType) const {
    ZEL_ASSERT(msgType != KORVAMessageI::e_Unknown);
    const korva::MessageTypeRow* const row = findMessage(msgType);
    if (row == nullptr) return nullptr;
    ZEL_TRY {
        return row->create();
    }
    ZEL_CATCH("KORVAMessageFactory::create()");
}

const KORVAMessageFactory::KORVAParamDescriptor* KORVAMessageFactory::getParameterTypes(
    const KORVAMessageI::MessageType& msgType) const {
    ZEL_ASSERT(msgType != KORVAMessageI::e_Unknown);
    const korva::MessageTypeRow* const row = findMessage(msgType);
    return row != nullptr ? row->parameters : nullptr;
}
