#include "zel/ZELThrow.h"

#include <zel/ZELThrowable.h>

#include <exception>

void zel::raise(ZELFileLocation location, ZELThrowable& throwable, const char* function) {
    throwable.hurl(location, function, "ZEL_THROW");
    std::terminate();  // not reached, but g++ doesn't see that a virtual call never returns
}

void zel::raise(ZELFileLocation location, ZELThrowable&& throwable, const char* function) {
    throwable.hurl(location, function, "ZEL_THROW");
    std::terminate();  // not reached, but g++ doesn't see that a virtual call never returns
}

void zel::rethrow(ZELFileLocation location, ZELThrowable& caught, const char* function,
                  const char* detail) {
    caught.addBackTrace(location, function, "ZEL_RETHROW", detail);
    throw;
}
