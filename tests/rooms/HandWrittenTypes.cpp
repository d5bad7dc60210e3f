// The types that stand in no schema, which the core is given from above: empty here, so that it and
// the rooms up to the one that defines them link without them.
#include "core/Descriptor.h"

namespace korva {

constinit const HandWrittenType handWrittenTypes[handWrittenTypeCount]{};

}  // namespace korva
