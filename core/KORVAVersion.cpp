#include "korva/KORVAVersion.h"

const char* KORVAVersion::version() noexcept {
    return KORVA_VERSION_STRING;
}

const char* KORVAVersion::busAuthority() noexcept {
    return KORVA_BUS_AUTHORITY;
}
