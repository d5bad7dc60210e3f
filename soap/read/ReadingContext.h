// What the handlers of one parse share.
#pragma once

#include "soap/read/ElementNames.h"
#include "soap/read/TextStore.h"
#include "soap/read/TypeNames.h"

#include <zel/ZELByteBuffer.h>

namespace korva {

struct ReadingContext {
    ElementNames names;
    TypeNames types;
    TextStore texts;
    ZELByteBuffer text{ZELByteBuffer::eGrowGeometric, 512};  ///< of the current element so far
};

}  // namespace korva
