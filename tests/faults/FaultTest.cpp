// The fault as an object of the model: fields, children by name, comparison, copies.
#include "tests/support/ExpectThrow.h"
#include "tests/support/SampleFaults.h"
#include "tests/support/TextBuffer.h"

#include <korva/KORVAFaultDetailArray.h>
#include <korva/KORVAMessageArray.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVASeverityEnum.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVAUndocumentedFaultDetailArray.h>
#include <korva/KORVA_CharStreamable.h>
#include <zel/ZELOwner.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using korva::test::addDetails;
using korva::test::addUndocumentedDetails;
using korva::test::makeDocumentedFault;
using korva::test::makeFault;
using korva::test::Maker;
using korva::test::makeUndocumentedFault;
using korva::test::sampleDetails;
using korva::test::TextBuffer;
using Object = KORVASchemaTypeI;

KORVASchemaTypesFactory& factory() {
    return KORVASchemaTypesFactory::getInstance();
}

std::string messagesOf(const KORVASOAPFault& fault) {
    std::string text = "what was there before";
    fault.getMessages(text);
    return text;
}

TEST(Fault, HasTheIdentityAndTheNameOfItsClass) {
    const KORVASOAPFault fault;
    EXPECT_EQ(fault.getObjectType(), Object::eKORVASOAPFault);
    EXPECT_EQ(static_cast<int>(fault.getObjectType()), 14);
    EXPECT_STREQ(fault.generatedObjectName(), "KORVASOAPFault");
    EXPECT_EQ(fault.getGeneratedObjectName(), "KORVASOAPFault");
    EXPECT_TRUE(fault.isa(Object::eKORVASOAPFault));
    EXPECT_FALSE(fault.isa(Object::e_Unknown));
    EXPECT_FALSE(fault.isa(Object::eKORVAUndocumentedFaultDetail));
}

TEST(Fault, IsKnownToTheFactory) {
    const Maker maker;
    KORVASchemaTypeI* const made =
        maker.registry()->own(ZELOwner(factory().create(Object::eKORVASOAPFault)));
    EXPECT_EQ(made->getObjectType(), Object::eKORVASOAPFault);
    EXPECT_STREQ(factory().objectTypeToXSIType(Object::eKORVASOAPFault), "KORVASOAPFault");
    EXPECT_TRUE(KORVASchemaTypesFactory::isGeneratedType(Object::eKORVASOAPFault));
    EXPECT_FALSE(KORVASchemaTypesFactory::isArrayType(Object::eKORVASOAPFault));
    EXPECT_EQ(factory().busTypeToObjectType("SOAPFault"), Object::e_Unknown);
    EXPECT_EQ(factory().busTypeToObjectType("KORVASOAPFault"), Object::e_Unknown);
}

TEST(Fault, IsEmptyAtFirst) {
    const KORVASOAPFault fault;
    EXPECT_EQ(fault.getFaultCode(), nullptr);
    EXPECT_EQ(fault.getFaultString(), nullptr);
    EXPECT_EQ(fault.getFaultActor(), nullptr);
    EXPECT_EQ(fault.getDetail(), nullptr);
    EXPECT_EQ(fault.getUndocumentedDetail(), nullptr);
}

TEST(Fault, StoresPointersAsTheyStand) {
    const char code[] = "a";
    const char text[] = "b";
    const char actor[] = "c";
    KORVAFaultDetailArray documented;
    KORVAUndocumentedFaultDetailArray undocumented;
    KORVASOAPFault fault;
    fault.setFaultCode(code);
    fault.setFaultString(text);
    fault.setFaultActor(actor);
    fault.setDetail(&documented);
    fault.setDetail(&undocumented);
    EXPECT_EQ(fault.getFaultCode(), code);
    EXPECT_EQ(fault.getFaultString(), text);
    EXPECT_EQ(fault.getFaultActor(), actor);
    EXPECT_EQ(fault.getDetail(), &documented);
    EXPECT_EQ(fault.getUndocumentedDetail(), &undocumented);
    fault.setFaultCode(nullptr);
    fault.setDetail(static_cast<KORVAFaultDetailArray*>(nullptr));
    EXPECT_EQ(fault.getFaultCode(), nullptr);
    EXPECT_EQ(fault.getDetail(), nullptr);
    EXPECT_EQ(fault.getUndocumentedDetail(), &undocumented);
}

TEST(Fault, NullUnsetsTheDetailsOfEitherShape) {
    KORVAFaultDetailArray documented;
    KORVAUndocumentedFaultDetailArray undocumented;
    KORVASOAPFault fault;
    fault.setDetail(&documented);
    fault.setDetail(&undocumented);
    fault.setDetail(nullptr);
    EXPECT_EQ(fault.getDetail(), nullptr);
    EXPECT_EQ(fault.getUndocumentedDetail(), nullptr);
}

// ----- children by name -----

TEST(Fault, NamesItsChildrenInTheOrderOfTheWire) {
    const KORVASOAPFault fault;
    EXPECT_EQ(fault.getChildObjectCount(), 4u);
    std::vector<const char*> names = {"before"};
    fault.getChildObjectNames(names, false);
    ASSERT_EQ(names.size(), 5u);
    EXPECT_STREQ(names[1], "faultcode");
    EXPECT_STREQ(names[2], "faultstring");
    EXPECT_STREQ(names[3], "faultactor");
    EXPECT_STREQ(names[4], "detail");
    names.clear();
    names.shrink_to_fit();
    fault.getChildObjectNames(names, true);
    EXPECT_EQ(names.size(), 4u);
}

TEST(Fault, TellsTheTypesOfItsChildren) {
    const KORVASOAPFault fault;
    EXPECT_EQ(fault.getChildType("faultcode"), Object::eString);
    EXPECT_EQ(fault.getChildType("faultstring"), Object::eString);
    EXPECT_EQ(fault.getChildType("faultactor"), Object::eString);
    EXPECT_EQ(fault.getChildType("detail"), Object::eKORVAFaultDetailArray);
}

TEST(Fault, GivesItsChildrenByName) {
    const Maker maker;
    KORVASOAPFault& fault = makeDocumentedFault(maker);
    for (const bool forWrite : {false, true}) {
        EXPECT_EQ(fault.getChildObject("faultcode", forWrite), fault.getFaultCode());
        EXPECT_EQ(fault.getChildObject("faultstring", forWrite), fault.getFaultString());
        EXPECT_EQ(fault.getChildObject("faultactor", forWrite), fault.getFaultActor());
        EXPECT_EQ(fault.getChildObject("detail", forWrite), fault.getDetail());
        EXPECT_EQ(KORVASOAPFault().getChildObject("faultcode", forWrite), nullptr);
        EXPECT_EQ(KORVASOAPFault().getChildObject("detail", forWrite), nullptr);
    }
}

TEST(Fault, GivesTheUndocumentedDetailsWhileTheDocumentedOnesAreUnset) {
    const Maker maker;
    KORVASOAPFault& fault = makeUndocumentedFault(maker);
    EXPECT_EQ(fault.getChildObject("detail", false), fault.getUndocumentedDetail());
    addDetails(maker, fault, {});
    EXPECT_EQ(fault.getChildObject("detail", false), fault.getDetail());
}

TEST(Fault, StoresTextsAndDetailsByName) {
    TextBuffer code("c");
    TextBuffer text("t");
    TextBuffer actor("a");
    KORVAFaultDetailArray documented;
    KORVAUndocumentedFaultDetailArray undocumented;
    KORVASOAPFault fault;
    std::size_t index = 7;
    EXPECT_EQ(fault.setChildObject("faultcode", &code, Object::eString, nullptr), 0u);
    EXPECT_EQ(fault.setChildObject("faultstring", &text, Object::eString, &index), 0u);
    EXPECT_EQ(fault.setChildObject("faultactor", &actor, Object::eString, nullptr), 0u);
    EXPECT_EQ(fault.setChildObject("detail", &documented, Object::eKORVAFaultDetailArray, nullptr),
              0u);
    EXPECT_EQ(fault.setChildObject("detail", &undocumented,
                                   Object::eKORVAUndocumentedFaultDetailArray, nullptr),
              0u);
    EXPECT_EQ(index, 7u);
    EXPECT_EQ(fault.getFaultCode(), code.str());
    EXPECT_EQ(fault.getFaultString(), text.str());
    EXPECT_EQ(fault.getFaultActor(), actor.str());
    EXPECT_EQ(fault.getDetail(), &documented);
    EXPECT_EQ(fault.getUndocumentedDetail(), &undocumented);
}

TEST(Fault, ANullNameIsAnAssertion) {
    KORVASOAPFault fault;
    const char* const null = nullptr;
    EXPECT_ASSERTION(fault.getChildObject(null, false), "ZEL_ASSERT(name);");
    EXPECT_ASSERTION(fault.getChildType(null), "ZEL_ASSERT(name);");
    EXPECT_ASSERTION(fault.setChildObject(null, nullptr, Object::eString, nullptr),
                     "ZEL_ASSERT(name);");
}

TEST(Fault, AnEmptyNameStoresNothing) {
    KORVASOAPFault fault;
    EXPECT_EQ(fault.setChildObject("", nullptr, Object::eString, nullptr), 0u);
}

TEST(Fault, ANullValueIsAnAssertion) {
    KORVASOAPFault fault;
    EXPECT_ASSERTION(fault.setChildObject("faultcode", nullptr, Object::eString, nullptr),
                     "ZEL_ASSERT(obj != NULL);");
    EXPECT_ASSERTION(fault.setChildObject("nothing", nullptr, Object::eString, nullptr),
                     "ZEL_ASSERT(obj != NULL);");
}

TEST(Fault, AnUnknownNameIsRefused) {
    KORVASOAPFault fault;
    TextBuffer text("x");
    EXPECT_NUMBERED(fault.getChildObject("faultCode", false), 0xEA41BF21U,
                    "KORVASOAPFault::getChildObject", "faultCode", "Fault");
    EXPECT_NUMBERED(fault.getChildObject("", false), 0xEA41BF21U, "KORVASOAPFault::getChildObject",
                    "", "Fault");
    EXPECT_NUMBERED(fault.getChildType("details"), 0xEA41BF21U, "KORVASOAPFault::getChildType",
                    "details", "Fault");
    EXPECT_NUMBERED(fault.setChildObject("x", &text, Object::eString, nullptr), 0xEA41BF21U,
                    "KORVASOAPFault::setChildObject", "x", "Fault");
}

TEST(Fault, ATextTakesNoOtherTypeThanString) {
    KORVASOAPFault fault;
    TextBuffer text("x");
    for (const char* const name : {"faultcode", "faultstring", "faultactor"}) {
        EXPECT_TYPE_ERROR(fault.setChildObject(name, &text, Object::eQName, nullptr), "SOAPFault",
                          name, "xs:string", "xs:QName");
        EXPECT_TYPE_ERROR(fault.setChildObject(name, &text, Object::eKORVAFaultDetail, nullptr),
                          "SOAPFault", name, "xs:string", "bus:faultDetail");
        EXPECT_EQ(fault.getChildObject(name, false), nullptr);
    }
    // A type without a text has none to tell.
    EXPECT_ASSERTION(
        fault.setChildObject("faultcode", &text, Object::eCharStreamable, nullptr),
        "ZEL_ASSERT_NAMED(false, \"KORVASchemaTypesFactory::objectTypeToXSIType(): unknown object "
        "type.\");");
}

TEST(Fault, ADetailOfAnotherTypeIsNoChild) {
    KORVASOAPFault fault;
    KORVAStringArray array;
    TextBuffer text("x");
    EXPECT_NUMBERED(fault.setChildObject("detail", &array, Object::eKORVAStringArray, nullptr),
                    0xEA41BF21U, "KORVASOAPFault::setChildObject", "detail", "Fault");
    EXPECT_NUMBERED(fault.setChildObject("detail", &text, Object::eString, nullptr), 0xEA41BF21U,
                    "KORVASOAPFault::setChildObject", "detail", "Fault");
}

TEST(Fault, AnArrayThatIsNotOfItsTypeIsRefusedAndUnsetsTheDetail) {
    const Maker maker;
    KORVASOAPFault& fault = makeDocumentedFault(maker);
    addUndocumentedDetails(maker, fault, {});
    KORVAStringArray other;
    EXPECT_TYPE_ERROR(
        fault.setChildObject("detail", &other, Object::eKORVAUndocumentedFaultDetailArray, nullptr),
        "SOAPFault", "detail", "KORVAUndocumentedFaultDetailArray", "bus:stringArray");
    EXPECT_EQ(fault.getUndocumentedDetail(), nullptr);
    EXPECT_NE(fault.getDetail(), nullptr);
    EXPECT_TYPE_ERROR(
        fault.setChildObject("detail", &other, Object::eKORVAFaultDetailArray, nullptr),
        "SOAPFault", "detail", "bus:faultDetailArray", "bus:stringArray");
    EXPECT_EQ(fault.getDetail(), nullptr);
}

// ----- messages -----

TEST(Fault, GivesTheMessagesOfTheFirstDetailAlone) {
    const std::string expected =
        "The data source <sales> & its replica can't be reached. Connection refused.";
    const Maker maker;
    EXPECT_EQ(messagesOf(makeDocumentedFault(maker)), expected);
    EXPECT_EQ(messagesOf(makeUndocumentedFault(maker)), expected);
}

TEST(Fault, GivesTheMessagesOfDocumentedDetailsBeforeThoseOfUndocumentedOnes) {
    const Maker maker;
    KORVASOAPFault& fault = makeFault(maker);
    addUndocumentedDetails(maker, fault, {{"error", "1", {{"undocumented", 0}}}});
    EXPECT_EQ(messagesOf(fault), "undocumented");
    addDetails(maker, fault, {{"error", "1", {{"documented", 0}}}});
    EXPECT_EQ(messagesOf(fault), "documented");
}

TEST(Fault, WithoutDetailsHasNoMessages) {
    const Maker maker;
    EXPECT_EQ(messagesOf(makeFault(maker)), "");
}

TEST(Fault, AnEmptyArrayOfDetailsHasNoMessages) {
    const Maker maker;
    KORVASOAPFault& documented = makeFault(maker);
    addDetails(maker, documented, {});
    EXPECT_EQ(messagesOf(documented), "");
    // The array counts although it is empty.
    addUndocumentedDetails(maker, documented, sampleDetails());
    EXPECT_EQ(messagesOf(documented), "");
    KORVASOAPFault& undocumented = makeFault(maker);
    addUndocumentedDetails(maker, undocumented, {});
    EXPECT_EQ(messagesOf(undocumented), "");
}

TEST(Fault, SkipsMessagesAndTextsThatAreNull) {
    const Maker maker;
    const korva::test::DetailTexts texts{"error", "1", {{"a", 0}, {nullptr, 0}, {"b", 0}}};
    KORVASOAPFault& documented = makeFault(maker);
    addDetails(maker, documented, {texts});
    EXPECT_EQ(messagesOf(documented), "ab");
    KORVASOAPFault& undocumented = makeFault(maker);
    addUndocumentedDetails(maker, undocumented, {texts});
    undocumented.getUndocumentedDetail()->front()->getMessage().push_back(nullptr);
    EXPECT_EQ(messagesOf(undocumented), "ab");
    undocumented.getUndocumentedDetail()->front() = nullptr;
    EXPECT_EQ(messagesOf(undocumented), "");
}

TEST(Fault, GivesMessagesThatAreStreamed) {
    const Maker maker;
    const korva::test::TextStreamable source("from a stream");
    KORVA_CharStreamable text;
    text.initialize(source, false);
    KORVASOAPFault& fault = makeFault(maker);
    addDetails(maker, fault, {{nullptr, nullptr, {{"[", 0}, {text.asCharStar(), 0}, {"]", 0}}}});
    EXPECT_EQ(messagesOf(fault), "[from a stream]");
}

// ----- comparison and copies -----

TEST(Fault, EqualsAFaultWithEqualTextsAndDetails) {
    const Maker maker;
    const KORVASOAPFault& left = makeDocumentedFault(maker);
    const KORVASOAPFault& right = makeDocumentedFault(maker);
    EXPECT_TRUE(left == left);
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
    EXPECT_TRUE(makeUndocumentedFault(maker) == makeUndocumentedFault(maker));
    EXPECT_TRUE(KORVASOAPFault() == KORVASOAPFault());
}

TEST(Fault, DiffersInEachField) {
    const Maker maker;
    const KORVASOAPFault& whole = makeDocumentedFault(maker);
    const auto differs = [&](auto change) {
        KORVASOAPFault& other = makeDocumentedFault(maker);
        change(other);
        EXPECT_TRUE(whole != other);
        EXPECT_TRUE(other != whole);
        EXPECT_FALSE(whole == other);
    };
    differs([](KORVASOAPFault& fault) { fault.setFaultCode("x"); });
    differs([](KORVASOAPFault& fault) { fault.setFaultCode(nullptr); });
    differs([](KORVASOAPFault& fault) { fault.setFaultString("x"); });
    differs([](KORVASOAPFault& fault) { fault.setFaultString(nullptr); });
    differs([](KORVASOAPFault& fault) { fault.setFaultActor("x"); });
    differs([](KORVASOAPFault& fault) { fault.setFaultActor(nullptr); });
    differs([](KORVASOAPFault& fault) { fault.getDetail()->clear(); });
    differs([](KORVASOAPFault& fault) { fault.getDetail()->front()->setErrorCode("x"); });
    differs([](KORVASOAPFault& fault) {
        fault.setDetail(static_cast<KORVAFaultDetailArray*>(nullptr));
    });
    differs([&](KORVASOAPFault& fault) { addUndocumentedDetails(maker, fault, {}); });
}

TEST(Fault, DiffersFromAnObjectOfAnotherClass) {
    const KORVAStringArray array;
    EXPECT_FALSE(KORVASOAPFault() == array);
    EXPECT_TRUE(KORVASOAPFault() != array);
}

TEST(Fault, ACopyIsEqualAndOutlivesTheSource) {
    const Maker copies;
    KORVASchemaTypeI* documented = nullptr;
    KORVASchemaTypeI* undocumented = nullptr;
    {
        const Maker sources;
        std::string code = "SOAP-ENV:Client";
        KORVASOAPFault& source = makeDocumentedFault(sources);
        source.setFaultCode(code.c_str());
        documented = &factory().createCopy(source, *copies.registry());
        undocumented = &factory().createCopy(makeUndocumentedFault(sources), *copies.registry());
        code = "overwritten";
    }
    const Maker maker;
    KORVASOAPFault& expected = makeDocumentedFault(maker);
    expected.setFaultCode("SOAP-ENV:Client");
    EXPECT_TRUE(static_cast<KORVASOAPFault&>(*documented) == expected);
    EXPECT_TRUE(static_cast<KORVASOAPFault&>(*undocumented) == makeUndocumentedFault(maker));
}

TEST(Fault, ACopySharesNothing) {
    const Maker maker;
    const KORVASOAPFault& source = makeUndocumentedFault(maker);
    const KORVASOAPFault copy(source, *maker.registry());
    EXPECT_NE(copy.getFaultCode(), source.getFaultCode());
    EXPECT_NE(copy.getUndocumentedDetail(), source.getUndocumentedDetail());
    EXPECT_NE(copy.getUndocumentedDetail()->at(0), source.getUndocumentedDetail()->at(0));
    EXPECT_EQ(copy.getDetail(), nullptr);
    const KORVASOAPFault empty(KORVASOAPFault(), *maker.registry());
    EXPECT_TRUE(empty == KORVASOAPFault());
}

}  // namespace
