// The tables of the schema, which the core is given from above: empty here, so that it links
// without them.
#include "core/Descriptor.h"

namespace korva {

constinit const TypeTables typeTables{};
constinit const HandWrittenType handWrittenTypes[handWrittenTypeCount]{};

}  // namespace korva
