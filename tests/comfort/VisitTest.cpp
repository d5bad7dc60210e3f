#include <korva/KORVABaseClassArray.h>
#include <korva/KORVAFolder.h>
#include <korva/KORVAGuid.h>
#include <korva/KORVAReport.h>
#include <korva/KORVASOAPFault.h>
#include <korva/KORVASeverityEnum.h>
#include <korva/KORVAUiClass.h>
#include <korva/KORVA_Visit.h>

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <type_traits>

namespace {

using Object = KORVASchemaTypeI;

struct Family {
    std::string operator()(const KORVA_ClassObject&) const { return "class"; }
    std::string operator()(const KORVA_ArrayObject&) const { return "array"; }
    std::string operator()(const KORVA_EnumObject&) const { return "enumeration"; }
    std::string operator()(const KORVA_RestrictedString&) const { return "text"; }
    std::string operator()(const Object&) const { return "other"; }
};

TEST(Visit, CallsTheVisitorWithTheFamily) {
    const KORVAReport report;
    const KORVABaseClassArray array;
    const KORVASeverityEnum severity;
    KORVAGuid guid;
    KORVASOAPFault fault;
    EXPECT_EQ(korva::visit(static_cast<const Object&>(report), Family()), "class");
    EXPECT_EQ(korva::visit(array, Family()), "array");
    EXPECT_EQ(korva::visit(severity, Family()), "enumeration");
    EXPECT_EQ(korva::visit(guid, Family()), "text");
    EXPECT_EQ(korva::visit(fault, Family()), "other");
}

TEST(Visit, HandsOverTheObjectItselfToBeChanged) {
    KORVAGuid guid;
    Object& object = guid;
    korva::visit(object, [](auto& found) {
        if constexpr (std::is_same_v<decltype(found), KORVA_RestrictedString&>)
            found.setValue("changed");
    });
    EXPECT_STREQ(guid.getValue(), "changed");
}

TEST(Match, CallsTheFirstHandlerThatFitsAndNoOther) {
    KORVAReport report;
    const KORVAFolder folder;
    const KORVAGuid guid;
    std::string calls;
    const auto run = [&calls](auto& object) {
        return korva::match(
            object, [&](const KORVAReport&) { calls += "report "; },
            [&](const KORVAUiClass&) { calls += "uiClass "; },
            [&](const KORVAFolder&) { calls += "folder "; });
    };
    Object& changeable = report;
    EXPECT_TRUE(run(changeable));
    EXPECT_TRUE(run(static_cast<const Object&>(folder)));
    EXPECT_FALSE(run(static_cast<const Object&>(guid)));
    EXPECT_EQ(calls, "report uiClass ");
}

TEST(Match, GivesTheResultOfTheHandlerThatWasCalled) {
    KORVAReport report;
    KORVAGuid guid;
    const auto name = [](Object& object) {
        return korva::match(
            object, [](KORVAReport&) { return 1; }, [](KORVAFolder&) { return 2; });
    };
    EXPECT_EQ(name(report), 1);
    EXPECT_EQ(name(guid), std::nullopt);
}

TEST(Match, LeavesTheRestToAHandlerOfAnyObject) {
    KORVAGuid guid;
    Object& object = guid;
    EXPECT_EQ(korva::match(
                  object, [](KORVAReport&) { return 'r'; }, [](Object&) { return 'o'; }),
              'o');
}

}  // namespace
