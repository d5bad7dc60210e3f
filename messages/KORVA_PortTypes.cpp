#include "korva/KORVA_PortTypes.h"

#include "messages/MessageDescriptor.h"

#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>
#include <zel/ZELImmortal.h>

#include <cstring>
#include <new>
#include <utility>

const std::vector<KORVAPortTypeI*>& KORVA_PortTypes::all() {
    ZEL_TRY {
        using PortTypes = std::vector<KORVAPortTypeI*>;
        return zel::immortal<const PortTypes>([](void* at) {
            PortTypes made;
            for (std::size_t i = 0; i != korva::portTypeCount; ++i)
                made.push_back(korva::portTypeInstances[i]());
            return ::new (at) PortTypes(std::move(made));
        });
    }
    ZEL_CATCH(nullptr);
}

KORVA_PortType* KORVA_PortTypes::find(const char* name) {
    ZEL_ASSERT(name);
    for (KORVAPortTypeI* const portType : all())
        if (std::strcmp(portType->getName(), name) == 0)
            return static_cast<KORVA_PortType*>(portType);
    return nullptr;
}
