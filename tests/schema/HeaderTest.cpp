// The bus header and the records beside it.

#include "tests/support/ExpectThrow.h"
#include "tests/support/Registry.h"

#include <korva/KORVAFormFieldVar.h>
#include <korva/KORVAFormatEnum.h>
#include <korva/KORVAHalyardHeader.h>
#include <korva/KORVAHalyardHeaderExtension1.h>
#include <korva/KORVAHdrSession.h>
#include <korva/KORVAProvider.h>
#include <korva/KORVAProviderArray.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVASeverityEnum.h>
#include <korva/KORVATenancy.h>
#include <korva/KORVATracking.h>
#include <korva/KORVAUserCapabilityCache.h>
#include <korva/KORVAWarden.h>
#include <korva/KORVAWardenException.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using korva::test::makeRegistry;
using korva::test::Registry;
using Object = KORVASchemaTypeI;

std::vector<std::string> childNames(const KORVASchemaTypeI& object) {
    std::vector<const char*> names;
    object.getChildObjectNames(names, true);
    return {names.begin(), names.end()};
}

TEST(Header, ChildrenStandInTheSchemasOrder) {
    EXPECT_EQ(
        childNames(KORVAHalyardHeader()),
        (std::vector<std::string>{"Moat", "Warden", "WardenProtect", "dispatcherTransportVars",
                                  "extension", "hdrSession", "providers", "routing", "tracking",
                                  "userCapabilityCache", "userPreferenceVars"}));
    EXPECT_EQ(childNames(KORVAWarden()),
              (std::vector<std::string>{"action", "authenticityToken", "WardenCredentialPath",
                                        "WardenPassport", "exception", "roles", "securityBlob",
                                        "settings", "userSessionID"}));
    EXPECT_EQ(childNames(KORVATenancy()),
              (std::vector<std::string>{"tenantID", "readTenantIDs", "writeTenantID",
                                        "isImpersonating"}));
}

TEST(Header, ChildTypesAreTheSchemas) {
    const KORVAHalyardHeader header;
    EXPECT_EQ(header.getChildType("routing"), Object::eKORVARoutingInfo);
    EXPECT_EQ(header.getChildType("Warden"), Object::eKORVAWarden);
    EXPECT_EQ(header.getChildType("warden"), Object::e_Unknown);
    EXPECT_EQ(header.getChildType("providers"), Object::eKORVAProviderArray);
    const KORVATracking tracking;
    EXPECT_EQ(tracking.getChildType("hopCount"), Object::eInteger);
    const KORVAWarden warden;
    EXPECT_EQ(warden.getChildType("authenticityToken"), Object::eBase64Binary);
    EXPECT_EQ(warden.getChildType("roles"), Object::eKORVAStringArray);
    const KORVAUserCapabilityCache cache;
    EXPECT_EQ(cache.getChildType("userCapabilities"), Object::eKORVAUserCapabilityEnumArray);
}

TEST(Header, ExtensionHasNoChildren) {
    const KORVAHalyardHeaderExtension1 extension;
    EXPECT_EQ(extension.getChildObjectCount(), 0u);
    EXPECT_TRUE(childNames(extension).empty());
    EXPECT_STREQ(
        KORVASchemaTypesFactory::getInstance().objectTypeToXSIType(extension.getObjectType()),
        "bus:halyardHeaderExtension1");
    const Registry registry = makeRegistry();
    const KORVAHalyardHeaderExtension1 copy(extension, *registry);
    EXPECT_TRUE(copy == extension);
    EXPECT_EQ(registry->size(), 0u);
}

TEST(Header, ProvidersOfHeaderAndTrackingAreDifferentArrays) {
    const Registry registry = makeRegistry();
    KORVAHalyardHeader header;
    KORVAProvider provider;
    header.getTracking(registry.get())->getProviders().push_back(&provider);
    EXPECT_EQ(header.getProviders().size(), 0u);
    EXPECT_EQ(header.getTracking()->getProviders().size(), 1u);
    header.getTracking()->getProviders().clear();
    header.getProviders().push_back(&provider);
    EXPECT_EQ(header.getTracking()->getProviders().size(), 0u);
}

TEST(Header, ArraysAreRefusedByName) {
    KORVAHalyardHeader header;
    KORVAProviderArray providers;
    EXPECT_ASSERTION(
        header.setChildObject("providers", &providers, Object::eKORVAProviderArray, nullptr),
        "ZEL_ASSERT_NAMED(false, \"The 'providers' element cannot be set through the "
        "'KORVAHalyardHeader::setChildObject()' method.\");");
    KORVATracking tracking;
    EXPECT_ASSERTION(
        tracking.setChildObject("providers", &providers, Object::eKORVAProviderArray, nullptr),
        "ZEL_ASSERT_NAMED(false, \"The 'providers' element cannot be set through the "
        "'KORVATracking::setChildObject()' method.\");");
}

TEST(Header, SessionHoldsFourArrays) {
    KORVAHdrSession session;
    EXPECT_EQ(childNames(session), (std::vector<std::string>{"cookieVars", "environmentVars",
                                                             "formFieldVars", "setCookieVars"}));
    for (const std::string& name : childNames(session)) {
        ASSERT_NE(session.getChildObject(name.c_str(), false), nullptr);
        EXPECT_TRUE(KORVASchemaTypesFactory::isArrayType(session.getChildType(name.c_str())));
    }
}

TEST(Header, FormatTellsPlainFromEncrypted) {
    const Registry registry = makeRegistry();
    KORVAFormFieldVar var;
    var.getFormat(registry.get())->setValue("encrypted");
    EXPECT_STREQ(var.getFormat()->toString(), "encrypted");
}

TEST(Header, ExceptionHasASeverity) {
    const Registry registry = makeRegistry();
    KORVAWardenException exception;
    exception.getSeverity(registry.get())->setValue(KORVASeverityEnum::eKORVAFatal);
    EXPECT_STREQ(static_cast<const char*>(exception.getSeverity()->getChildObject("", false)),
                 "fatal");
}

}  // namespace
