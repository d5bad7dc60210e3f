/// Registries as tests hold them.
#pragma once

#include <korva/KORVAObjectRegistry.h>
#include <zel/ZELSmartPointer.h>

namespace korva::test {

using Registry = ZELSmartPointer<KORVAObjectRegistry>;

inline Registry makeRegistry() {
    return KORVAObjectRegistry::create();
}

}  // namespace korva::test
