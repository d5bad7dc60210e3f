// The names of all types: which there are, what they are called in C++ and on the wire.

#include "tests/support/SchemaScan.h"
#include "tests/vocabulary/Types.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <string>
#include <vector>

namespace {

using korva::test::builtSchema;
using korva::test::childrenOf;
using korva::test::crcOf;
using korva::test::Family;
using korva::test::familyOf;
using korva::test::isAbstract;
using korva::test::make;
using korva::test::namesOf;
using korva::test::typeNames;
using korva::test::typeOf;

const KORVASchemaTypesFactory& factory() {
    return KORVASchemaTypesFactory::getInstance();
}

std::vector<std::string> endingIn(const std::string& suffix, Family family) {
    std::vector<std::string> out;
    for (const std::string& name : namesOf(family))
        if (name.ends_with(suffix)) out.push_back(name);
    return out;
}

TEST(TypeName, ThereAre933) {
    EXPECT_EQ(typeNames().size(), 933U);
    EXPECT_TRUE(std::is_sorted(typeNames().begin(), typeNames().end()));
    for (const std::string& name : typeNames())
        EXPECT_NE(factory().busTypeToObjectType(name.c_str()), KORVASchemaTypeI::e_Unknown) << name;
}

TEST(TypeName, NoTypeStandsInTheSchemaThatIsNotAmongThem) {
    std::vector<std::string> inSchema;
    for (const auto& [name, type] : builtSchema())
        inSchema.push_back(name);
    EXPECT_EQ(inSchema, typeNames());
}

TEST(TypeName, IdentityIsItsCrc32) {
    for (const std::string& name : typeNames())
        EXPECT_EQ(factory().busTypeToObjectType(name.c_str()), crcOf(name)) << name;
}

TEST(TypeName, NoTwoShareAnIdentity) {
    std::set<int> identities;
    for (const std::string& name : typeNames())
        identities.insert(typeOf(name));
    EXPECT_EQ(identities.size(), typeNames().size());
}

TEST(TypeName, XsiTypeIsTheNameWithThePrefixOfTheBus) {
    for (const std::string& name : typeNames())
        EXPECT_EQ(factory().objectTypeToXSIType(typeOf(name)), "bus:" + name);
}

TEST(TypeName, ClassNameIsTheNameWithItsFirstLetterRaisedBehindThePrefix) {
    for (const std::string& name : typeNames()) {
        if (isAbstract(name)) continue;
        std::string className = "KORVA" + name;
        className[5] = static_cast<char>(std::toupper(static_cast<unsigned char>(className[5])));
        EXPECT_EQ(make(name)->generatedObjectName(), className);
    }
}

TEST(TypeName, ObjectTellsTheIdentityOfItsName) {
    for (const std::string& name : typeNames())
        if (!isAbstract(name)) {
            EXPECT_EQ(make(name)->getObjectType(), crcOf(name)) << name;
        }
}

TEST(TypeName, WithAPrefixIsUnknown) {
    EXPECT_EQ(factory().busTypeToObjectType("bus:account"), 0);
    EXPECT_EQ(factory().busTypeToObjectType("account"), crcOf("account"));
    for (const std::string& name : typeNames())
        EXPECT_EQ(factory().busTypeToObjectType(("bus:" + name).c_str()), 0) << name;
}

TEST(TypeName, InOtherLettersIsUnknown) {
    for (const std::string& name : typeNames()) {
        std::string other = name;
        other[0] = static_cast<char>(other[0] ^ ('a' ^ 'A'));
        EXPECT_EQ(factory().busTypeToObjectType(other.c_str()), 0) << other;
    }
}

TEST(TypeName, Of590IsAClass) {
    EXPECT_EQ(namesOf(Family::Class).size(), 590U);
}

TEST(TypeName, Of108IsAnArray) {
    EXPECT_EQ(namesOf(Family::Array).size(), 108U);
}

TEST(TypeName, Of129IsAPropertyWithTheAbstractOne) {
    EXPECT_EQ(namesOf(Family::Property).size(), 129U);
    EXPECT_TRUE(isAbstract("baseProp"));
}

TEST(TypeName, Of97IsAnEnumeration) {
    EXPECT_EQ(namesOf(Family::Enum).size(), 97U);
}

TEST(TypeName, OfNineIsARestrictedString) {
    EXPECT_EQ(namesOf(Family::RestrictedString),
              (std::vector<std::string>{"addressSMTP", "dataSourceCommandBlock", "guid",
                                        "metadataModelExpression", "metadataModelItemName",
                                        "searchPathMultipleObject", "searchPathSingleObject",
                                        "specification", "xmlEncodedXML"}));
}

TEST(TypeName, EndsInArrayAlsoFor29Classes) {
    EXPECT_EQ(endingIn("Array", Family::Class).size(), 29U);
    EXPECT_EQ(endingIn("Array", Family::Array).size(), 108U);
    EXPECT_EQ(familyOf("runOptionStringArray"), Family::Class);
    EXPECT_EQ(familyOf("stringArray"), Family::Array);
}

TEST(TypeName, EndsInEnumAlsoForTwoClasses) {
    EXPECT_EQ(
        endingIn("Enum", Family::Class),
        (std::vector<std::string>{"contentTaskOptionAuditLevelEnum", "indexOptionClassEnum"}));
    EXPECT_EQ(endingIn("Enum", Family::Enum).size(), 97U);
}

TEST(TypeName, EndsInPropAlsoForTwoClasses) {
    EXPECT_EQ(endingIn("Prop", Family::Class),
              (std::vector<std::string>{"eventRefProp", "refProp"}));
    EXPECT_EQ(endingIn("Prop", Family::Property).size(), 129U);
}

TEST(TypeName, RefPropIsARecordAndNoProperty) {
    const auto record = make("refProp");
    EXPECT_FALSE(record->isa(KORVASchemaTypeI::eKORVABaseProp));
    EXPECT_EQ(childrenOf(*record), (std::vector<std::string>{"properties", "refPropName"}));
}

}  // namespace
