// Starts the XML platform before the tests of a program, and ends it behind them.
#include <gtest/gtest.h>
#include <xercesc/util/PlatformUtils.hpp>

namespace {

class XmlPlatform : public testing::Environment {
public:
    void SetUp() override { xercesc::XMLPlatformUtils::Initialize(); }
    void TearDown() override { xercesc::XMLPlatformUtils::Terminate(); }
};

const testing::Environment* const platform = testing::AddGlobalTestEnvironment(new XmlPlatform);

}  // namespace
