#include "tests/roundtrip/Operations.h"

#include <korva/KORVABatchReportServicePortType.h>
#include <korva/KORVAContentManagerCacheServicePortType.h>
#include <korva/KORVAContentManagerServicePortType.h>
#include <korva/KORVADeliveryServicePortType.h>
#include <korva/KORVADispatcherPortType.h>
#include <korva/KORVAEventManagementServicePortType.h>
#include <korva/KORVAMobileServicePortType.h>
#include <korva/KORVAMonitorServicePortType.h>
#include <korva/KORVAReportServicePortType.h>
#include <korva/KORVAVelmoraTabulonPortType.h>

#include <zlib.h>

#include <stdexcept>

namespace korva::test {

namespace {

const KORVAPortTypeI& portTypeCalled(const std::string& name) {
    for (const KORVAPortTypeI* const portType : allPortTypes())
        if (name == portType->getName()) return *portType;
    throw std::runtime_error("there is no port type " + name);
}

}  // namespace

const std::vector<PortTypeOperation>& operations() {
    static const std::vector<PortTypeOperation> all = [] {
        std::vector<PortTypeOperation> result;
        for (const PortTypeTable& table : portTypeTables())
            for (const Operation& row : table.operations)
                result.push_back({&portTypeCalled(table.name), row.name, row.request, row.reply,
                                  KORVA_TEST_AUTHORITY + row.action});
        return result;
    }();
    return all;
}

const std::vector<KORVAPortTypeI*>& allPortTypes() {
    static const std::vector<KORVAPortTypeI*> all = {
        &KORVABatchReportServicePortType::getInstance(),
        &KORVAContentManagerCacheServicePortType::getInstance(),
        &KORVAContentManagerServicePortType::getInstance(),
        &KORVADeliveryServicePortType::getInstance(),
        &KORVADispatcherPortType::getInstance(),
        &KORVAEventManagementServicePortType::getInstance(),
        &KORVAMobileServicePortType::getInstance(),
        &KORVAMonitorServicePortType::getInstance(),
        &KORVAReportServicePortType::getInstance(),
        &KORVAVelmoraTabulonPortType::getInstance(),
    };
    return all;
}

KORVAMessageI::MessageType messageTypeOf(const std::string& messageName) {
    return static_cast<KORVAMessageI::MessageType>(
        crc32(0, reinterpret_cast<const Bytef*>(messageName.data()),
              static_cast<uInt>(messageName.size())));
}

}  // namespace korva::test
