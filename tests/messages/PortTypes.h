/// All port types, for tests that hold for each.
#pragma once

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

#include <string>
#include <vector>

namespace korva::test {

struct PortTypeCase {
    const KORVAPortTypeI& portType;
    const char* name;
    const char* boundNamespace;  ///< behind the authority
    const char* firstAction;     ///< of the first operation, behind the authority
};

inline std::string withAuthority(const char* path) {
    return std::string(KORVA_TEST_AUTHORITY) + path;
}

inline std::vector<PortTypeCase> portTypes() {
    return {
        {KORVAReportServicePortType::getInstance(), "reportService", "/schemas/reportService/1",
         "/xmlns/prod/velmora/reportService/202004/"},
        {KORVABatchReportServicePortType::getInstance(), "batchReportService",
         "/schemas/batchReportService/1", "/xmlns/prod/velmora/batchReportService/202004/"},
        {KORVAVelmoraTabulonPortType::getInstance(), "VelmoraTabulonPortType",
         "/schemas/halyardns/3/", "/schemas/halyardns/3#contentManagerService"},
        {KORVADeliveryServicePortType::getInstance(), "deliveryService",
         "/schemas/deliveryService/1", "/xmlns/prod/velmora/deliveryService/202004/"},
        {KORVADispatcherPortType::getInstance(), "dispatcher", "/schemas/dispatcher/1",
         "/xmlns/prod/velmora/dispatcherService/202004/"},
        {KORVAMonitorServicePortType::getInstance(), "monitorService", "/schemas/monitorService/1",
         "/xmlns/prod/velmora/monitorService/202004/"},
        {KORVAContentManagerServicePortType::getInstance(), "contentManagerService",
         "/schemas/contentManagerService/1", "/xmlns/prod/velmora/contentManagerService/202004/"},
        {KORVAContentManagerCacheServicePortType::getInstance(), "contentManagerCacheService",
         "/schemas/contentManagerCacheService/1",
         "/xmlns/prod/velmora/contentManagerCacheService/202004/"},
        {KORVAEventManagementServicePortType::getInstance(), "eventManagementService",
         "/schemas/eventManagementService/1", "/xmlns/prod/velmora/eventManagementService/202004/"},
        {KORVAMobileServicePortType::getInstance(), "mobileService", "/schemas/mobileService/1",
         "/xmlns/prod/velmora/mobileService/202004/.control"},
    };
}

}  // namespace korva::test
