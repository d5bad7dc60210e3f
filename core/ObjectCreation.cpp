#include "core/ObjectCreation.h"

#include "core/Names.h"

#include <zel/ZELFrame.h>
#include <zel/ZELOwner.h>

namespace korva {

KORVASchemaTypeI* createRegistered(TypeDescriptor::Create create, KORVAObjectRegistryI& registry) {
    ZEL_TRY {
        return registry.own(ZELOwner<KORVASchemaTypeI>(create()));
    }
    ZEL_CATCH(nullptr);
}

void assertCopySource(const KORVASchemaTypeI& object, ObjectType identity) {
    if (object.isa(identity)) return;
    zel::assertionFailed(
        ("ZEL_ASSERT(obj.isa(KORVASchemaTypeI::e" + className(identity) + "));").c_str(),
        ZEL_LOCATION);
}

}  // namespace korva
