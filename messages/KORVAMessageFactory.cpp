#include "korva/KORVAMessageFactory.h"

#include "messages/MessageDescriptor.h"

#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

#include <algorithm>
#include <cstddef>
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
    // Made on first use and never destroyed: nothing runs when the library is loaded or left.
    alignas(KORVAMessageFactory) static std::byte storage[sizeof(KORVAMessageFactory)];
    static KORVAMessageFactory& instance = *::new (static_cast<void*>(storage)) KORVAMessageFactory;
    return instance;
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
