// Uses one of the platform libraries, which is built sooner than the whole.
#include <zel/ZELException.h>

#include <cstring>

int main() {
    return std::strcmp(ZELException("text").getErrorCodeString(), "text");
}
