#include "core/ObjectName.h"

#include <zel/ZELFrame.h>

namespace korva {

const std::string& makeObjectName(const char* name) {
    ZEL_TRY {
        return *new std::string(name);
    }
    ZEL_CATCH("getGeneratedObjectName");
}

}  // namespace korva
