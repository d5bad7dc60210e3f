#include "generator/emit/Emit.h"

namespace korva::schemac::emit {

std::string emitDocs(const model::Schema&) {
    return {};
}

}  // namespace korva::schemac::emit
