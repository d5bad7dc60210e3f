#include <i18n/KORVAI18NRes.h>
#include <korva/KORVAAsynchRun_Request.h>
#include <korva/KORVAPortTypeBinding.h>
#include <korva/KORVAReportServicePortType.h>
#include <korva/KORVAVersion.h>
#include <zel/ZELSmartPointer.h>

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(Version, OfTheLibraryIsThatOfItsHeaders) {
    EXPECT_STREQ(KORVAVersion::version(), KORVA_VERSION_STRING);
}

TEST(Version, IsToldAsTextAndAsNumbersAlike) {
    const std::string joined = std::to_string(KORVA_VERSION_MAJOR) + "." +
                               std::to_string(KORVA_VERSION_MINOR) + "." +
                               std::to_string(KORVA_VERSION_PATCH);
    EXPECT_EQ(KORVAVersion::version(), joined);
    EXPECT_EQ(KORVA_VERSION % 100, KORVA_VERSION_PATCH);
    EXPECT_EQ(KORVA_VERSION / 100 % 100, KORVA_VERSION_MINOR);
    EXPECT_EQ(KORVA_VERSION / 10000, KORVA_VERSION_MAJOR);
}

TEST(Version, TellsTheAuthorityThatTheLibraryWasConfiguredWith) {
    EXPECT_STREQ(KORVAVersion::busAuthority(), KORVA_TEST_AUTHORITY);
    EXPECT_STREQ(KORVAVersion::busAuthority(), KORVA_BUS_AUTHORITY);
}

TEST(Version, TellsTheAuthorityOfNamespacesAndActions) {
    const std::string authority = KORVAVersion::busAuthority();
    EXPECT_EQ(KORVAI18NRes::getView(KORVAI18NRes::eBusNamespace).substr(0, authority.size() + 1),
              authority + "/");

    const ZELSmartPointer<KORVAAsynchRun_Request> request(new KORVAAsynchRun_Request);
    const ZELSmartPointer<KORVAPortTypeBinding> binding =
        KORVAReportServicePortType::getInstance().createPortTypeBinding(request.get());
    EXPECT_EQ(std::string(binding->getSOAPAction()).substr(0, authority.size() + 1),
              authority + "/");
}

}  // namespace
