#include "tests/support/ExpectThrow.h"
#include "tests/support/Registry.h"

#include <korva/KORVABaseClassArray.h>
#include <korva/KORVABaseClassArrayProp.h>
#include <korva/KORVABooleanProp.h>
#include <korva/KORVAClassEnum.h>
#include <korva/KORVAClassEnumProp.h>
#include <korva/KORVAFolder.h>
#include <korva/KORVAGuid.h>
#include <korva/KORVAGuidProp.h>
#include <korva/KORVAIntArray.h>
#include <korva/KORVAPositiveIntegerProp.h>
#include <korva/KORVAReport.h>
#include <korva/KORVASOAPFault.h>
#include <korva/KORVASchemaInfo.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVAStringProp.h>
#include <korva/KORVATokenProp.h>
#include <korva/KORVAWarden.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_Equal.h>
#include <korva/KORVA_Path.h>

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace {

using korva::test::makeRegistry;
using korva::test::Registry;
using Object = KORVASchemaTypeI;

constexpr unsigned noSuchPath = 0xEA4F0030U;
constexpr unsigned badPath = 0xEA4F0031U;
constexpr unsigned wrongKind = 0xEA4F0032U;

/// A report in a folder in a folder.
class Path : public testing::Test {
protected:
    Path() {
        m_rootName.setValue("Public");
        m_root.setDefaultName(&m_rootName);
        m_inner.setDefaultName(&m_innerName);
        m_innerName.setValue("Sales");
        m_parents.getValue().push_back(&m_inner);
        m_parents.getValue().push_back(&m_root);
        m_report.setParent(&m_parents);
    }

    std::string text(const KORVA_Path& path) const {
        return korva::get(m_report, path).asText().value_or("null");
    }

    Registry m_registry = makeRegistry();
    KORVATokenProp m_rootName;
    KORVATokenProp m_innerName;
    KORVAFolder m_root;
    KORVAFolder m_inner;
    KORVABaseClassArrayProp m_parents;
    KORVAReport m_report;
};

// ----- the text of a path -----

TEST_F(Path, IsMadeOfNamesIndexesAndStars) {
    const KORVA_Path path("parent/value/10/*");
    ASSERT_EQ(path.steps().size(), 4u);
    EXPECT_EQ(path.steps()[0].kind, KORVA_Path::StepKind::Name);
    EXPECT_EQ(path.steps()[0].name, "parent");
    EXPECT_EQ(path.steps()[2].kind, KORVA_Path::StepKind::Index);
    EXPECT_EQ(path.steps()[2].index, 10u);
    EXPECT_EQ(path.steps()[3].kind, KORVA_Path::StepKind::Any);
    EXPECT_TRUE(path.isPattern());
    EXPECT_FALSE(KORVA_Path("parent/value").isPattern());
    EXPECT_EQ(path.toString(), "parent/value/10/*");
    EXPECT_TRUE(KORVA_Path("").empty());
    EXPECT_EQ(KORVA_Path(""), KORVA_Path());
    EXPECT_EQ(KORVA_Path("a/0"), KORVA_Path(std::string("a/0")));
    EXPECT_NE(KORVA_Path("a/0"), KORVA_Path("a/1"));
}

TEST_F(Path, WithAnEmptyStepOrANumberThatIsNoneIsRefused) {
    for (const char* const path : {"/", "/a", "a/", "a//b"})
        EXPECT_NUMBERED(KORVA_Path{path}, badPath, "KORVA_Path", path, "a step is empty");
    for (const char* const path : {"a/01", "00", "1x", "99999999999999999999999999"})
        EXPECT_NUMBERED(KORVA_Path{path}, badPath, "KORVA_Path", path,
                        "a step that begins with a digit is no index");
}

TEST_F(Path, MatchesPlacesWithTheSameStepsWhereItHasNoStar) {
    const KORVA_Path pattern("parent/*/0");
    EXPECT_TRUE(pattern.matches("parent/value/0"));
    EXPECT_FALSE(pattern.matches("parent/value/1"));
    EXPECT_FALSE(pattern.matches("owner/value/0"));
    EXPECT_FALSE(pattern.matches("parent/value"));
    EXPECT_TRUE(KORVA_Path().matches(KORVA_Path()));
}

// ----- reading -----

TEST_F(Path, LeadsThroughObjectsAndArraysCountedFromZero) {
    EXPECT_EQ(text("parent/value/0/defaultName/value"), "Sales");
    EXPECT_EQ(text("parent/value/1/defaultName/value"), "Public");
    EXPECT_EQ(korva::get(m_report, "parent").asObject(), &m_parents);
    EXPECT_EQ(korva::get(m_report, "parent/value/1").asObject(), &m_root);
    EXPECT_EQ(korva::get(m_report, "parent/value/1").index(), 1u);
}

TEST_F(Path, WithoutStepsLeadsToTheObjectItself) {
    const KORVA_Child child = korva::get(m_report, "");
    EXPECT_EQ(child.asObject(), &m_report);
    EXPECT_EQ(child.type(), Object::eKORVAReport);
}

TEST_F(Path, MayEndAtAChildThatIsNotSet) {
    EXPECT_TRUE(korva::get(m_report, "owner").isNull());
    EXPECT_EQ(korva::get(m_report, "owner").type(), Object::eKORVABaseClassArrayProp);
}

TEST_F(Path, OfAnUnknownNameTellsWhatIsThereWithTheNearestNameFirst) {
    EXPECT_NUMBERED(korva::get(m_report, "parent/valeu/0"), noSuchPath, "KORVA_Path",
                    "parent/valeu/0", "parent/valeu",
                    "KORVABaseClassArrayProp with value, schemaInfo");
}

TEST_F(Path, OfAMissingElementTellsHowManyThereAre) {
    EXPECT_NUMBERED(korva::get(m_report, "parent/value/2"), noSuchPath, "KORVA_Path",
                    "parent/value/2", "parent/value/2",
                    "KORVABaseClassArray with the elements 0 to 1");
    EXPECT_NUMBERED(korva::get(m_report, "parent/value/name"), noSuchPath, "KORVA_Path",
                    "parent/value/name", "parent/value/name",
                    "KORVABaseClassArray with the elements 0 to 1");
    m_parents.getValue().clear();
    EXPECT_NUMBERED(korva::get(m_report, "parent/value/0"), noSuchPath, "KORVA_Path",
                    "parent/value/0", "parent/value/0", "KORVABaseClassArray with no elements");
}

TEST_F(Path, ThatGoesOnBehindItsEndTellsWhatEndsIt) {
    EXPECT_NUMBERED(korva::get(m_report, "owner/value"), noSuchPath, "KORVA_Path", "owner/value",
                    "owner/value", "a child that isn't set");
    EXPECT_NUMBERED(korva::get(m_root, "defaultName/value/0/x"), noSuchPath, "KORVA_Path",
                    "defaultName/value/0/x", "defaultName/value/0",
                    "a value of the type xs:string");
    const KORVAGuid guid;
    EXPECT_NUMBERED(korva::get(guid, "value"), noSuchPath, "KORVA_Path", "value", "value",
                    "KORVAGuid");
}

TEST_F(Path, ThatLeadsNowhereFindsNothing) {
    EXPECT_FALSE(korva::find(m_report, "parent/value/2").has_value());
    EXPECT_FALSE(korva::find(m_report, "owner/value").has_value());
    EXPECT_FALSE(korva::find(m_report, "naem").has_value());
    EXPECT_EQ(korva::find(m_report, "parent/value/1").value().asObject(), &m_root);
}

// ----- many places -----

TEST_F(Path, WithAStarLeadsToEachElementOrChild) {
    std::vector<std::string> found;
    for (const KORVA_PathMatch& match :
         korva::findAll(m_report, "parent/value/*/defaultName/value"))
        found.push_back(match.path.toString() + '=' + match.child.describe());
    EXPECT_EQ(found, (std::vector<std::string>{"parent/value/0/defaultName/value=Sales",
                                               "parent/value/1/defaultName/value=Public"}));
    EXPECT_EQ(korva::findAll(m_report, "*").size(), m_report.getChildObjectCount());
    EXPECT_TRUE(korva::findAll(m_report, "owner/*").empty());
    EXPECT_TRUE(korva::findAll(m_report, "parent/value/*/naem").empty());
    EXPECT_EQ(korva::findAll(m_report, "").size(), 1u);
    KORVAGuid guid;
    EXPECT_TRUE(korva::findAll(guid, "*").empty());
}

TEST_F(Path, WithAStarIsNoSinglePlace) {
    const char* const reason = "its * leads to many places";
    EXPECT_NUMBERED(korva::get(m_report, "parent/*"), badPath, "KORVA_Path", "parent/*", reason);
    EXPECT_NUMBERED(korva::find(m_report, "*"), badPath, "KORVA_Path", "*", reason);
    EXPECT_NUMBERED(korva::set(m_report, "*", 1, *m_registry), badPath, "KORVA_Path", "*", reason);
}

// ----- writing -----

TEST_F(Path, TakesTextsNumbersAndBooleans) {
    korva::set(m_report, "parent/value/0/defaultName/value", "Orders", *m_registry);
    EXPECT_STREQ(m_innerName.getValue(), "Orders");
    korva::set(m_report, "disabled/value", true, *m_registry);
    EXPECT_TRUE(*m_report.getDisabled()->getValue());
    korva::set(m_report, "version/value", 3, *m_registry);
    EXPECT_EQ(*m_report.getVersion()->getValue(), 3);
}

TEST_F(Path, KeepsACopyOfAText) {
    std::string source = "a text";
    korva::set(m_report, "tenantID/value", std::string_view(source), *m_registry);
    source.assign(source.size(), '-');
    EXPECT_EQ(text("tenantID/value"), "a text");
}

TEST_F(Path, MakesWhatIsNotSetOnTheWay) {
    korva::set(m_report, "storeID/value", "an id", *m_registry);
    ASSERT_NE(m_report.getStoreID(), nullptr);
    EXPECT_STREQ(m_report.getStoreID()->getValue()->getValue(), "an id");
    EXPECT_EQ(m_registry->size(), 3u);  // property, guid and text
}

TEST_F(Path, TurnsATextIntoTheWordOfAnEnumeration) {
    korva::set(m_report, "objectClass/value", "report", *m_registry);
    EXPECT_EQ(m_report.getObjectClass()->getValue()->getValue(), KORVAClassEnum::eKORVAReport);
    korva::set(m_report, "objectClass/value", "folder", *m_registry);
    EXPECT_EQ(m_report.getObjectClass()->getValue()->getValue(), KORVAClassEnum::eKORVAFolder);
}

TEST_F(Path, ToTheElementBehindTheLastAppends) {
    KORVAWarden warden;
    korva::set(warden, "roles/0", "author", *m_registry);
    korva::set(warden, "roles/1", "reader", *m_registry);
    korva::set(warden, "roles/0", "owner", *m_registry);
    ASSERT_EQ(warden.getRoles().size(), 2u);
    EXPECT_STREQ(warden.getRoles().at(0), "owner");
    EXPECT_STREQ(warden.getRoles().at(1), "reader");
    EXPECT_NUMBERED(korva::set(warden, "roles/3", "x", *m_registry), noSuchPath, "KORVA_Path",
                    "roles/3", "roles/3", "KORVAStringArray with the elements 0 to 1");
    KORVAIntArray numbers;
    korva::set(numbers, "0", 7, *m_registry);
    EXPECT_EQ(numbers.at(0), 7);
}

TEST_F(Path, TakesObjectsAndBinariesAsTheyStand) {
    KORVABooleanProp hidden;
    korva::set(m_report, "hidden", &hidden, *m_registry);
    EXPECT_EQ(korva::get(m_report, "hidden").asObject(), &hidden);
    korva::set(m_report, "parent/value/1", &m_inner, *m_registry);
    EXPECT_EQ(m_parents.getValue().at(1), &m_inner);
    KORVAWarden warden;
    KORVAXSBase64Binary blob("bytes", 5);
    korva::set(warden, "securityBlob", &blob, *m_registry);
    EXPECT_EQ(warden.getSecurityBlob(), &blob);
}

TEST_F(Path, UnsetsByNull) {
    korva::set(m_report, "version/value", 3, *m_registry);
    korva::set(m_report, "version/value", nullptr, *m_registry);
    EXPECT_EQ(m_report.getVersion()->getValue(), nullptr);
    korva::set(m_inner, "defaultName/value", nullptr, *m_registry);
    EXPECT_EQ(m_innerName.getValue(), nullptr);
    korva::set(m_report, "parent/value/0", nullptr, *m_registry);
    EXPECT_EQ(m_parents.getValue().at(0), nullptr);
    korva::set(m_report, "parent/value", nullptr, *m_registry);
    EXPECT_TRUE(m_parents.getValue().empty());
    korva::set(m_report, "parent", nullptr, *m_registry);
    EXPECT_EQ(m_report.getParent(), nullptr);
    KORVAPositiveIntegerProp unset;
    EXPECT_TRUE(korva::equal(*m_report.getVersion(), unset));
    KORVAIntArray numbers;
    numbers.push_back(1);
    EXPECT_NUMBERED(korva::set(numbers, "0", nullptr, *m_registry), wrongKind, "KORVA_Path",
                    "A value that may be unset", "0", "one of the type xs:int");
}

TEST_F(Path, TakesAFaultsChildren) {
    KORVASOAPFault fault;
    korva::set(fault, "faultcode", "Client", *m_registry);
    EXPECT_STREQ(fault.getFaultCode(), "Client");
    EXPECT_EQ(korva::get(fault, "faultcode").asText(), "Client");
}

TEST_F(Path, RefusesAValueOfAnotherKind) {
    EXPECT_TYPE_ERROR(korva::set(m_inner, "defaultName/value", 1, *m_registry), "tokenProp",
                      "value", "xs:string", "xs:int");
    EXPECT_NUMBERED(korva::set(m_report, "disabled", "true", *m_registry), wrongKind, "KORVA_Path",
                    "A text", "disabled", "one of the type bus:booleanProp");
    EXPECT_NUMBERED(korva::set(m_report, "disabled/value", "true", *m_registry), wrongKind,
                    "KORVA_Path", "A text", "disabled/value", "one of the type xs:boolean");
    EXPECT_NUMBERED(korva::set(m_report, "parent/value", &m_root, *m_registry), wrongKind,
                    "KORVA_Path", "A value that can be replaced", "parent/value",
                    "one of the type bus:baseClassArray");
    EXPECT_NUMBERED(korva::set(m_report, "", "x", *m_registry), badPath, "KORVA_Path", "",
                    "it leads to what holds all values");
}

TEST_F(Path, MakesNoObjectOfAnAbstractClass) {
    EXPECT_NUMBERED(korva::set(m_report, "parent/value/2/defaultName/value", "x", *m_registry),
                    0xEA47EC7BU, "KORVASchemaTypesFactory::create()", "bus:baseClass");
}

TEST_F(Path, ThatFailsToBeSetLeavesAllAsItWas) {
    const KORVA_Path paths[] = {"storeID/valeu", "storeID/value/0", "version/schemaInfo/naem"};
    for (const KORVA_Path& path : paths)
        EXPECT_THROW(korva::set(m_report, path, "x", *m_registry), KORVAException);
    EXPECT_THROW(korva::set(m_report, "objectClass/value", "no word", *m_registry), KORVAException);
    EXPECT_THROW(korva::set(m_report, "disabled/value", "true", *m_registry), KORVAException);
    EXPECT_EQ(m_report.getStoreID(), nullptr);
    EXPECT_EQ(m_report.getVersion(), nullptr);
    EXPECT_EQ(m_report.getObjectClass(), nullptr);
    EXPECT_EQ(m_report.getDisabled(), nullptr);
    EXPECT_EQ(m_parents.getValue().size(), 2u);
}

}  // namespace
