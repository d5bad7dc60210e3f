/// What the generated code calls to make objects.
#pragma once

#include "core/Descriptor.h"
#include "core/ObjectCopy.h"

#include <korva/KORVAObjectRegistryI.h>
#include <zel/ZELAssert.h>

namespace korva {

/// Makes an object and registers it. Nothing is left behind by a failure.
KORVASchemaTypeI* createRegistered(TypeDescriptor::Create create, KORVAObjectRegistryI& registry);

/// @throws ZELAssertError `object` is not of the type `identity`
void assertCopySource(const KORVASchemaTypeI& object, ObjectType identity);

template <class X>
KORVASchemaTypeI* createObject() {
    return new X();
}

template <class X, ObjectType identity>
KORVASchemaTypeI* copyObject(const KORVASchemaTypeI& object, KORVAObjectRegistryI& registry) {
    assertCopySource(object, identity);
    return new X(static_cast<const X&>(object), registry);
}

/// A getter that creates: with a registry, an unset child is made, registered and stored.
template <class X>
X* createOnGet(X*& child, KORVAObjectRegistryI* registry) {
    if (child == nullptr && registry != nullptr)
        child = static_cast<X*>(createRegistered(&createObject<X>, *registry));
    return child;
}

/// A getter of a child whose declared type is abstract.
/// @throws ZELAssertError the child is unset, and there is a registry to create it in
template <class X>
X* refuseCreation(X* child, KORVAObjectRegistryI* registry) {
    if (child == nullptr && registry != nullptr)
        ZEL_ASSERT_NAMED(false, "Creation on get not supported on abstract types");
    return child;
}

}  // namespace korva
