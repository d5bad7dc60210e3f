#include "tests/roundtrip/Operations.h"

#include <korva/KORVA_PortType.h>
#include <korva/KORVA_PortTypes.h>

#include <zlib.h>

namespace korva::test {

const std::vector<PortTypeOperation>& operations() {
    static const std::vector<PortTypeOperation> all = [] {
        std::vector<PortTypeOperation> result;
        for (const PortTypeTable& table : portTypeTables())
            for (const Operation& row : table.operations)
                result.push_back({KORVA_PortTypes::find(table.name.c_str()), row.name, row.request,
                                  row.reply, KORVA_TEST_AUTHORITY + row.action});
        return result;
    }();
    return all;
}

KORVAMessageI::MessageType messageTypeOf(const std::string& messageName) {
    return static_cast<KORVAMessageI::MessageType>(
        crc32(0, reinterpret_cast<const Bytef*>(messageName.data()),
              static_cast<uInt>(messageName.size())));
}

}  // namespace korva::test
