// Undocumented details and their array as objects of the model.
#include "tests/support/ExpectThrow.h"
#include "tests/support/SampleFaults.h"
#include "tests/support/TextBuffer.h"

#include <korva/KORVAChildIndex.h>
#include <korva/KORVAMessage.h>
#include <korva/KORVAMessageArray.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVAUndocumentedFaultDetailArray.h>
#include <korva/KORVA_CharStreamable.h>
#include <zel/ZELOwner.h>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace {

using korva::test::Maker;
using korva::test::makeUndocumentedDetail;
using korva::test::sampleDetails;
using korva::test::TextBuffer;
using Detail = KORVAUndocumentedFaultDetail;
using Array = KORVAUndocumentedFaultDetailArray;
using Object = KORVASchemaTypeI;

constexpr const char* detailNames =
    "ZEL_ASSERT_NAMED(false, \"Unsupported.  KORVAUndocumentedFaultDetail objects are serialized "
    "in doc/literal style.\");";
constexpr const char* arrayNames =
    "ZEL_ASSERT_NAMED(false, \"Unsupported.  KORVAUndocumentedFaultDetailArray objects are "
    "serialized in doc/literal style.\");";

KORVASchemaTypesFactory& factory() {
    return KORVASchemaTypesFactory::getInstance();
}

Detail& makeSample(const Maker& maker) {
    return makeUndocumentedDetail(maker, sampleDetails().front());
}

// ----- a detail -----

TEST(UndocumentedDetail, HasTheIdentityAndTheNameOfItsClass) {
    const Detail detail;
    EXPECT_EQ(detail.getObjectType(), Object::eKORVAUndocumentedFaultDetail);
    EXPECT_EQ(static_cast<int>(detail.getObjectType()), 12);
    EXPECT_STREQ(detail.generatedObjectName(), "KORVAUndocumentedFaultDetail");
    EXPECT_EQ(detail.getGeneratedObjectName(), "KORVAUndocumentedFaultDetail");
    EXPECT_TRUE(detail.isa(Object::eKORVAUndocumentedFaultDetail));
    EXPECT_FALSE(detail.isa(Object::eKORVAFaultDetail));
    EXPECT_EQ(detail.getChildObjectCount(), 3u);
}

TEST(UndocumentedDetail, IsKnownToTheFactory) {
    const Maker maker;
    KORVASchemaTypeI* const made =
        maker.registry()->own(ZELOwner(factory().create(Object::eKORVAUndocumentedFaultDetail)));
    EXPECT_EQ(made->getObjectType(), Object::eKORVAUndocumentedFaultDetail);
    EXPECT_STREQ(factory().objectTypeToXSIType(Object::eKORVAUndocumentedFaultDetail),
                 "KORVAUndocumentedFaultDetail");
    EXPECT_EQ(factory().busTypeToObjectType("undocumentedFaultDetail"), Object::e_Unknown);
}

TEST(UndocumentedDetail, StoresTextsAsTheyStandAndOwnsItsMessages) {
    const char severity[] = "fatal";
    const char code[] = "1";
    Detail detail;
    EXPECT_EQ(detail.getSeverity(), nullptr);
    EXPECT_EQ(detail.getErrorCodeString(), nullptr);
    EXPECT_TRUE(detail.getMessage().empty());
    detail.setSeverity(severity);
    detail.setErrorCodeString(code);
    EXPECT_EQ(detail.getSeverity(), severity);
    EXPECT_EQ(detail.getErrorCodeString(), code);
    detail.setSeverity(nullptr);
    EXPECT_EQ(detail.getSeverity(), nullptr);
}

TEST(UndocumentedDetail, GivesItsChildrenByName) {
    const Maker maker;
    Detail& detail = makeSample(maker);
    EXPECT_EQ(detail.getChildObject("severity", false), detail.getSeverity());
    EXPECT_EQ(detail.getChildObject("errorCode", true), detail.getErrorCodeString());
    EXPECT_EQ(detail.getChildObject("message", false), &detail.getMessage());
    EXPECT_EQ(detail.getChildType("severity"), Object::eString);
    EXPECT_EQ(detail.getChildType("errorCode"), Object::eString);
    EXPECT_EQ(detail.getChildType("message"), Object::eKORVAMessageArray);
}

TEST(UndocumentedDetail, StoresTextsByName) {
    Detail detail;
    TextBuffer severity("warn");
    TextBuffer code("7");
    EXPECT_EQ(detail.setChildObject("severity", &severity, Object::eString, nullptr), 0u);
    EXPECT_EQ(detail.setChildObject("errorCode", &code, Object::eQName, nullptr), 0u);
    EXPECT_EQ(detail.getSeverity(), severity.str());
    EXPECT_EQ(detail.getErrorCodeString(), code.str());
    KORVA_CharStreamable streamed;
    detail.setChildObject("errorCode", &streamed, Object::eCharStreamable, nullptr);
    EXPECT_EQ(detail.getErrorCodeString(), streamed.asCharStar());
}

TEST(UndocumentedDetail, AppendsMessagesByName) {
    Detail detail;
    KORVAMessage first;
    KORVAMessage second;
    EXPECT_EQ(detail.setChildObject("message", &first, Object::eKORVAMessage, nullptr), 0u);
    EXPECT_EQ(detail.setChildObject("message", &second, Object::eKORVAMessage, nullptr), 0u);
    ASSERT_EQ(detail.getMessage().size(), 2u);
    EXPECT_EQ(detail.getMessage().at(0), &first);
    EXPECT_EQ(detail.getMessage().at(1), &second);
}

TEST(UndocumentedDetail, ANullNameIsAnAssertion) {
    Detail detail;
    const char* const null = nullptr;
    EXPECT_ASSERTION(detail.getChildObject(null, false), "ZEL_ASSERT(name);");
    EXPECT_ASSERTION(detail.getChildType(null), "ZEL_ASSERT(name);");
    EXPECT_ASSERTION(detail.setChildObject(null, nullptr, Object::eString, nullptr),
                     "ZEL_ASSERT(name);");
}

TEST(UndocumentedDetail, AnEmptyNameStoresNothing) {
    Detail detail;
    EXPECT_EQ(detail.setChildObject("", nullptr, Object::eString, nullptr), 0u);
}

TEST(UndocumentedDetail, ANullValueIsAnAssertion) {
    Detail detail;
    EXPECT_ASSERTION(detail.setChildObject("severity", nullptr, Object::eString, nullptr),
                     "ZEL_ASSERT(obj != NULL);");
}

TEST(UndocumentedDetail, AnUnknownNameIsRefused) {
    Detail detail;
    TextBuffer text("x");
    EXPECT_NUMBERED(detail.getChildObject("x", false), 0xEA41BF21U,
                    "KORVAUndocumentedFaultDetail::getChildObject", "x", "UndocumentFaultDetail");
    EXPECT_NUMBERED(detail.getChildType(""), 0xEA41BF21U,
                    "KORVAUndocumentedFaultDetail::getChildType", "", "UndocumentFaultDetail");
    EXPECT_NUMBERED(detail.setChildObject("Severity", &text, Object::eString, nullptr), 0xEA41BF21U,
                    "KORVAUndocumentedFaultDetail::setChildObject", "Severity",
                    "UndocumentFaultDetail");
}

TEST(UndocumentedDetail, AValueOfAnotherTypeIsRefused) {
    Detail detail;
    KORVAStringArray other;
    TextBuffer text("x");
    int number = 1;
    EXPECT_TYPE_ERROR(detail.setChildObject("severity", &number, Object::eInt, nullptr),
                      "undocumentedFaultDetail", "severity", "xs:string", "xs:int");
    EXPECT_TYPE_ERROR(
        detail.setChildObject("errorCode", &other, Object::eKORVAStringArray, nullptr),
        "undocumentedFaultDetail", "errorCode", "xs:string", "bus:stringArray");
    EXPECT_TYPE_ERROR(detail.setChildObject("message", &text, Object::eString, nullptr),
                      "undocumentedFaultDetail", "message", "bus:message", "xs:string");
    EXPECT_TYPE_ERROR(detail.setChildObject("message", &other, Object::eKORVAStringArray, nullptr),
                      "undocumentedFaultDetail", "message", "bus:message", "bus:stringArray");
    EXPECT_TRUE(detail == Detail());
}

TEST(UndocumentedDetail, CannotBeWalkedByName) {
    const Detail detail;
    std::vector<const char*> names;
    EXPECT_ASSERTION(detail.getChildObjectNames(names, true), detailNames);
    EXPECT_ASSERTION(korva::test::element(detail), detailNames);
}

TEST(UndocumentedDetail, DiffersInEachField) {
    const Maker maker;
    const Detail& whole = makeSample(maker);
    EXPECT_TRUE(whole == whole);
    EXPECT_TRUE(whole == makeSample(maker));
    EXPECT_FALSE(whole != makeSample(maker));
    EXPECT_FALSE(whole == KORVAStringArray());
    const auto differs = [&](auto change) {
        Detail& other = makeSample(maker);
        change(other);
        EXPECT_TRUE(whole != other);
        EXPECT_TRUE(other != whole);
    };
    differs([](Detail& detail) { detail.setSeverity("x"); });
    differs([](Detail& detail) { detail.setSeverity(nullptr); });
    differs([](Detail& detail) { detail.setErrorCodeString("x"); });
    differs([](Detail& detail) { detail.setErrorCodeString(nullptr); });
    differs([](Detail& detail) { detail.getMessage().clear(); });
    differs([](Detail& detail) { detail.getMessage().at(1)->setNestingLevel(9); });
}

TEST(UndocumentedDetail, ACopyIsEqualAndOutlivesTheSource) {
    const Maker copies;
    KORVASchemaTypeI* copy = nullptr;
    {
        const Maker sources;
        copy = &factory().createCopy(makeSample(sources), *copies.registry());
    }
    const Maker maker;
    EXPECT_TRUE(static_cast<Detail&>(*copy) == makeSample(maker));
}

// ----- the array -----

Array& makeArray(const Maker& maker) {
    auto* const array = maker.make<Array>();
    for (const auto& texts : sampleDetails())
        array->push_back(&makeUndocumentedDetail(maker, texts));
    return *array;
}

TEST(UndocumentedDetailArray, HasTheIdentityAndTheNameOfItsClass) {
    const Array array;
    EXPECT_EQ(array.getObjectType(), Object::eKORVAUndocumentedFaultDetailArray);
    EXPECT_EQ(static_cast<int>(array.getObjectType()), 13);
    EXPECT_STREQ(array.generatedObjectName(), "KORVAUndocumentedFaultDetailArray");
    EXPECT_EQ(array.getGeneratedObjectName(), "KORVAUndocumentedFaultDetailArray");
    EXPECT_TRUE(array.isa(Object::eKORVAUndocumentedFaultDetailArray));
    EXPECT_FALSE(array.isa(Object::eKORVAUndocumentedFaultDetail));
    EXPECT_FALSE(array.isa(Object::eKORVAFaultDetailArray));
    EXPECT_EQ(array.getChildType("anything"), Object::eKORVAUndocumentedFaultDetail);
}

TEST(UndocumentedDetailArray, IsKnownToTheFactoryButNotAmongTheArraysOfTheSchema) {
    const Maker maker;
    constexpr auto type = Object::eKORVAUndocumentedFaultDetailArray;
    KORVASchemaTypeI* const made = maker.registry()->own(ZELOwner(factory().create(type)));
    EXPECT_EQ(made->getObjectType(), type);
    EXPECT_STREQ(factory().objectTypeToXSIType(type), "KORVAUndocumentedFaultDetailArray");
    EXPECT_FALSE(KORVASchemaTypesFactory::isArrayType(type));
    EXPECT_EQ(KORVASchemaTypesFactory::objectTypeToArrayType(type), nullptr);
    std::string text;
    EXPECT_ASSERTION(
        factory().objectTypeToArrayType(type, nullptr, text),
        "ZEL_ASSERT_NAMED(arrayType, \"KORVASchemaTypesFactory::objectTypeToArrayType(): unknown "
        "object type.\");");
}

TEST(UndocumentedDetailArray, BehavesAsTheArraysOfTheSchema) {
    Detail first;
    Detail second;
    Array array;
    EXPECT_TRUE(array.empty());
    array.reserve(4);
    array.push_back(&first);
    array.push_back(&second);
    EXPECT_EQ(array.size(), 2u);
    EXPECT_EQ(array.getChildObjectCount(), 2u);
    EXPECT_EQ(array.at(1), &second);
    EXPECT_EQ(array.front(), &first);
    EXPECT_EQ(*array.begin(), &first);
    EXPECT_EQ(array.end() - array.begin(), 2);
    EXPECT_EQ(array.getChildObject(KORVAChildIndex::toName(2), false), &second);
    EXPECT_THROW(array.at(2), std::out_of_range);
    EXPECT_THROW(array.getChildObject(KORVAChildIndex::toName(3), false), std::out_of_range);
    EXPECT_EQ(*array.erase(array.begin()), &second);
    EXPECT_EQ(array.size(), 1u);
    array.clear();
    EXPECT_TRUE(array.empty());
}

TEST(UndocumentedDetailArray, AppendsAndReplacesByName) {
    constexpr auto type = Object::eKORVAUndocumentedFaultDetail;
    Detail first;
    Detail second;
    Array array;
    EXPECT_EQ(array.setChildObject("", nullptr, type, nullptr), 0u);
    EXPECT_EQ(array.setChildObject("exception", &first, type, nullptr), 1u);
    EXPECT_EQ(array.setChildObject("exception", &first, type, nullptr), 2u);
    std::size_t index = 2;
    EXPECT_EQ(array.setChildObject("exception", &second, type, &index), 2u);
    EXPECT_EQ(array.at(1), &second);
    index = 3;
    EXPECT_ASSERTION(array.setChildObject("exception", &second, type, &index),
                     "ZEL_ASSERT(*idx > 0 && m_vector.size() >= *idx);");
    EXPECT_ASSERTION(array.setChildObject("exception", nullptr, type, nullptr),
                     "ZEL_ASSERT(obj != NULL);");
}

TEST(UndocumentedDetailArray, RefusesOtherElementsUnderItsOwnName) {
    Array array;
    TextBuffer text("x");
    KORVAFaultDetail other;
    EXPECT_TYPE_ERROR(array.setChildObject("exception", &text, Object::eString, nullptr),
                      "undocumentedFaultDetailArray", "<index>", "KORVAUndocumentedFaultDetail",
                      "xs:string");
    EXPECT_TYPE_ERROR(array.setChildObject("exception", &other, Object::eKORVAFaultDetail, nullptr),
                      "undocumentedFaultDetailArray", "<index>", "KORVAUndocumentedFaultDetail",
                      "bus:faultDetail");
}

TEST(UndocumentedDetailArray, CannotBeWalkedByName) {
    const Array array;
    std::vector<const char*> names;
    EXPECT_ASSERTION(array.getChildObjectNames(names, false), arrayNames);
    EXPECT_ASSERTION(korva::test::element(array), arrayNames);
}

TEST(UndocumentedDetailArray, EqualsAnArrayWithEqualElementsInTheSameOrder) {
    const Maker maker;
    const Array& left = makeArray(maker);
    Array& right = makeArray(maker);
    EXPECT_TRUE(left == left);
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
    EXPECT_FALSE(left == KORVAStringArray());
    std::swap(*right.begin(), *(right.begin() + 1));
    EXPECT_FALSE(left == right);
    std::swap(*right.begin(), *(right.begin() + 1));
    right.push_back(nullptr);
    EXPECT_FALSE(left == right);
    EXPECT_FALSE(right == left);
    Array& third = makeArray(maker);
    third.push_back(nullptr);
    EXPECT_TRUE(third == right);
    third.front() = nullptr;
    EXPECT_FALSE(third == right);
    EXPECT_FALSE(right == third);
}

TEST(UndocumentedDetailArray, ACopyIsEqualAndOutlivesTheSource) {
    const Maker copies;
    KORVASchemaTypeI* copy = nullptr;
    Array assigned;
    assigned.push_back(copies.make<Detail>());
    {
        const Maker sources;
        Array& source = makeArray(sources);
        source.push_back(nullptr);
        copy = &factory().createCopy(source, *copies.registry());
        assigned.copy(source, *copies.registry());
    }
    const Maker maker;
    Array& expected = makeArray(maker);
    expected.push_back(nullptr);
    EXPECT_TRUE(static_cast<Array&>(*copy) == expected);
    EXPECT_TRUE(assigned == expected);
}

TEST(UndocumentedDetailArray, RefusesToCopyWhatOnlyPretendsToBeOne) {
    /// Answers with an identity that is not its own.
    class Impostor : public KORVAStringArray {
    public:
        ObjectType getObjectType() const override { return eKORVAUndocumentedFaultDetailArray; }
        bool isa(ObjectType) const override { return false; }
    };
    const Maker maker;
    EXPECT_ASSERTION(factory().createCopy(Impostor(), *maker.registry()),
                     "ZEL_ASSERT(obj.isa(KORVASchemaTypeI::eKORVAUndocumentedFaultDetailArray));");
}

}  // namespace
