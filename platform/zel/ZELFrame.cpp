#include "zel/ZELFrame.h"

#include <zel/ZELOutOfMemoryError.h>
#include <zel/ZELStdExceptionError.h>
#include <zel/ZELThrowable.h>

#include <exception>
#include <new>

void zel::translate(ZELFileLocation location, const char* function) {
    try {
        throw;
    } catch (ZELThrowable& throwable) {
        throwable.addBackTrace(location, function, "ZEL_RETHROW");
        throw;
    } catch (const std::bad_alloc&) {
        ZELOutOfMemoryError().hurl(location, function, "ZEL_THROW");
    } catch (const std::exception& exception) {
        ZELStdExceptionError(exception).hurl(location, function, "ZEL_THROW");
    }
}
