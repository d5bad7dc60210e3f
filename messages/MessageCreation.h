/// What the generated table of messages calls to make one.
#pragma once

#include <korva/KORVAMessageI.h>

namespace korva {

template <class M>
KORVAMessageI* createMessage() {
    return new M;
}

}  // namespace korva
