#include "platform/brim/OpenFile.h"

#include "platform/brim/SystemError.h"

#include <zel/ZELAssert.h>

#include <cerrno>

#if defined(_WIN32)
#include <zel/I18NString.h>
#endif

std::FILE* brim::openFile(const char* path, const char* mode, const char* function) {
    ZEL_ASSERT(path);
#if defined(_WIN32)
    // There the narrow calls take the system's code page, and only the wide ones take any name.
    const auto wide = [](const I18NString& text) {
        return reinterpret_cast<const wchar_t*>(text.wide());
    };
    const I18NString widePath(path);
    const I18NString wideMode(mode);
    std::FILE* file = _wfopen(wide(widePath), wide(wideMode));
#else
    std::FILE* file = std::fopen(path, mode);
#endif
    if (!file) raiseSystemError(ZEL_LOCATION, function, path, errno);
    return file;
}
