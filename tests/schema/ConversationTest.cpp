#include "tests/support/ExpectThrow.h"
#include "tests/support/Registry.h"
#include "tests/support/TextBuffer.h"

#include <korva/KORVAAsynchDetail.h>
#include <korva/KORVAAsynchDetailArray.h>
#include <korva/KORVAAsynchDetailCount.h>
#include <korva/KORVAAsynchDetailEventRecord.h>
#include <korva/KORVAAsynchDetailReportOutput.h>
#include <korva/KORVAAsynchDetailReportStatus.h>
#include <korva/KORVAAsynchDetailReportStatusEnum.h>
#include <korva/KORVAAsynchReply.h>
#include <korva/KORVAAsynchReplyStatusEnum.h>
#include <korva/KORVAAsynchSecondaryRequestArray.h>
#include <korva/KORVAAsynchStatusEnum.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVAStringArray.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace {

using korva::test::makeRegistry;
using korva::test::Registry;
using korva::test::TextBuffer;
using Object = KORVASchemaTypeI;

TEST(Conversation, StatusesShareTheirWordsAcrossEnumerations) {
    for (const char* const word : {"complete", "conversationComplete", "stillWorking", "working"})
        EXPECT_EQ(static_cast<int>(KORVAAsynchStatusEnum::stringToEnum(word)),
                  static_cast<int>(KORVAAsynchReplyStatusEnum::stringToEnum(word)));
    for (const char* const word : {"prompting", "responseReady"})
        EXPECT_EQ(static_cast<int>(KORVAAsynchStatusEnum::stringToEnum(word)),
                  static_cast<int>(KORVAAsynchDetailReportStatusEnum::stringToEnum(word)));
    EXPECT_EQ(static_cast<std::uint32_t>(KORVAAsynchStatusEnum::stringToEnum("responseReady")),
              0x18D0D02AU);
}

TEST(Conversation, ReplyStatusRefusesPrompting) {
    EXPECT_NUMBERED(KORVAAsynchReplyStatusEnum::stringToEnum("prompting"), 0xEA45DC29U,
                    "_stringToEnum()", "asynchReplyStatusEnum:prompting");
    const Registry registry = makeRegistry();
    KORVAAsynchReply reply;
    TextBuffer word("prompting");
    EXPECT_NUMBERED(
        reply.getStatus(registry.get())->setChildObject("", &word, Object::eString, nullptr),
        0xEA45DC29U, "_stringToEnum()", "asynchReplyStatusEnum:prompting");
    EXPECT_NO_THROW(KORVAAsynchStatusEnum::stringToEnum("prompting"));
}

TEST(Conversation, ReplyWithoutDetailsAndRequestsIsLegal) {
    const Registry registry = makeRegistry();
    KORVAAsynchReply reply;
    reply.getStatus(registry.get())->setValue(KORVAAsynchReplyStatusEnum::eKORVAComplete);
    EXPECT_TRUE(reply.getDetails().empty());
    EXPECT_TRUE(reply.getSecondaryRequests().empty());
    const KORVAAsynchReply copy(reply, *registry);
    EXPECT_TRUE(copy == reply);
}

TEST(Conversation, DetailsMixSubclassesAndKeepThem) {
    const Registry registry = makeRegistry();
    KORVAAsynchReply reply;
    KORVAAsynchDetailCount count;
    count.setCount(3);
    KORVAAsynchDetailReportOutput output;
    output.getOutputPages().push_back("page");
    KORVAAsynchDetailReportStatus status;
    status.getStatus(registry.get())->setValue("prompting");
    auto* const details =
        static_cast<KORVAAsynchDetailArray*>(reply.getChildObject("details", false));
    details->setChildObject("item", &count, count.getObjectType(), nullptr);
    details->setChildObject("item", &output, output.getObjectType(), nullptr);
    details->setChildObject("item", &status, status.getObjectType(), nullptr);
    KORVAAsynchReplyStatusEnum noDetail;
    EXPECT_TYPE_ERROR(details->setChildObject("item", &noDetail, noDetail.getObjectType(), nullptr),
                      "asynchDetailArray", "<index>", "bus:asynchDetail",
                      "bus:asynchReplyStatusEnum");
    const KORVAAsynchReply copy(reply, *registry);
    ASSERT_EQ(copy.getDetails().size(), 3u);
    EXPECT_EQ(copy.getDetails().at(0)->getObjectType(), Object::eKORVAAsynchDetailCount);
    EXPECT_EQ(copy.getDetails().at(1)->getObjectType(), Object::eKORVAAsynchDetailReportOutput);
    EXPECT_EQ(copy.getDetails().at(2)->getObjectType(), Object::eKORVAAsynchDetailReportStatus);
    EXPECT_TRUE(copy.getDetails().at(1)->isa(Object::eKORVAAsynchDetail));
    EXPECT_TRUE(copy == reply);
    output.getOutputPages().clear();
    EXPECT_FALSE(copy == reply);
}

TEST(Conversation, DetailItselfCannotBeCreated) {
    EXPECT_NUMBERED(KORVASchemaTypesFactory::getInstance().create(Object::eKORVAAsynchDetail),
                    0xEA47EC7BU, "KORVASchemaTypesFactory::create()", "bus:asynchDetail");
}

TEST(Conversation, EventRecordKeepsItsLaterAdditionAtTheEnd) {
    const KORVAAsynchDetailEventRecord record;
    std::vector<const char*> names;
    record.getChildObjectNames(names, true);
    EXPECT_EQ(names.size(), 16u);
    EXPECT_STREQ(names[14], "user");
    EXPECT_STREQ(names[15], "tenantID");
    EXPECT_EQ(record.getChildType("requestedStartTime"), Object::eDateTime);
}

}  // namespace
