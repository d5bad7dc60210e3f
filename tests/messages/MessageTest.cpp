// The contract of messages, told on a few of them.

#include "tests/messages/ThrowingRegistry.h"
#include "tests/support/ExpectThrow.h"

#include <korva/KORVAAsynchReply.h>
#include <korva/KORVAAsynchRun_Reply.h>
#include <korva/KORVAAsynchRun_Request.h>
#include <korva/KORVADelete_Reply.h>
#include <korva/KORVADispatcherStopService_Request.h>
#include <korva/KORVAFolder.h>
#include <korva/KORVAHalyardHeader.h>
#include <korva/KORVAMapGetMapInfo_Request.h>
#include <korva/KORVAObjectRegistry.h>
#include <korva/KORVAOptionArray.h>
#include <korva/KORVAParameterCollectParameterValuesSpecification_Request.h>
#include <korva/KORVAParameterValueArray.h>
#include <korva/KORVARS_testDataSourceConnection_2_Request.h>
#include <korva/KORVAReportServiceReportSpecification.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <korva/KORVAXSBase64Binary.h>
#include <tarn/tarnsymbols1.h>
#include <zel/ZELByteBuffer.h>
#include <zel/ZELOutOfMemoryError.h>
#include <zel/ZELStdExceptionError.h>
#include <zel/ZELThrow.h>
#include <zel/ZELUtCrc32.h>

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using korva::test::ThrowingRegistry;
using Type = KORVASchemaTypeI;
using ObjectType = KORVASchemaTypeI::ObjectType;
using Registry = ZELSmartPointer<KORVAObjectRegistry>;

constexpr char nameAssertion[] = "ZEL_ASSERT(name);";

Registry makeRegistry() {
    return KORVAObjectRegistry::create();
}

TEST(Message, TypeIsTheCrcOfItsName) {
    const KORVAAsynchRun_Request request;
    EXPECT_STREQ(request.getMessageName(), "asynchRun_Request");
    EXPECT_EQ(request.getMessageType(), 0x205E290F);
    const KORVAAsynchRun_Reply reply;
    EXPECT_STREQ(reply.getMessageName(), "asynchRun_Reply");
    EXPECT_EQ(static_cast<unsigned>(reply.getMessageType()),
              ZELUtCrc32::crc32("asynchRun_Reply", 0));
}

TEST(Message, AppendsItsParametersNamesInDeclaredOrder) {
    const KORVAAsynchRun_Request request;
    std::vector<const char*> names = {"before"};
    request.getChildObjectNames(names);
    ASSERT_EQ(names.size(), 4U);
    EXPECT_STREQ(names[0], "before");
    EXPECT_STREQ(names[1], "objectPath");
    EXPECT_STREQ(names[2], "parameterValues");
    EXPECT_STREQ(names[3], "options");
}

TEST(Message, NamesItsParametersByTheWordTable) {
    const KORVAAsynchRun_Request request;
    std::vector<const char*> names;
    request.getChildObjectNames(names);
    for (const char* const name : names)
        EXPECT_EQ(name, tarnsymbols1::getChar(ZELUtCrc32::crc32(name, 0)));
}

TEST(Message, WithoutParametersHasNoNames) {
    KORVAMapGetMapInfo_Request request;
    std::vector<const char*> names;
    request.getChildObjectNames(names);
    EXPECT_TRUE(names.empty());
    EXPECT_EQ(request.getChildObject("options", true), nullptr);
    EXPECT_EQ(request.getChildType("options"), Type::e_Unknown);
    request.setChildObject("options", nullptr, Type::eString);
}

// Typed accessors

TEST(Message, GetterWithRegistryCreatesAndRegistersOnce) {
    const Registry registry = makeRegistry();
    KORVAAsynchRun_Request request;
    KORVAOptionArray* const options = request.getOptions(registry.get());
    ASSERT_NE(options, nullptr);
    EXPECT_EQ(registry->size(), 1U);
    EXPECT_EQ(request.getOptions(registry.get()), options);
    EXPECT_EQ(std::as_const(request).getOptions(), options);
    EXPECT_EQ(request.getOptions(nullptr), options);
    EXPECT_EQ(registry->size(), 1U);
    EXPECT_NE(request.getObjectPath(registry.get()), nullptr);
    EXPECT_NE(request.getParameterValues(registry.get()), nullptr);
    EXPECT_EQ(registry->size(), 3U);
}

TEST(Message, GetterWithoutRegistryCreatesNothing) {
    KORVAAsynchRun_Request request;
    EXPECT_EQ(request.getObjectPath(nullptr), nullptr);
    EXPECT_EQ(request.getObjectPath(), nullptr);
}

TEST(Message, ConstGetterNeverCreates) {
    const KORVAAsynchRun_Request request;
    EXPECT_EQ(request.getObjectPath(), nullptr);
    EXPECT_EQ(request.getParameterValues(), nullptr);
    EXPECT_EQ(request.getOptions(), nullptr);
}

TEST(Message, GetterCreatesAfreshAfterNullWasSet) {
    const Registry registry = makeRegistry();
    KORVAAsynchRun_Request request;
    KORVAOptionArray* const first = request.getOptions(registry.get());
    request.setOptions(nullptr);
    EXPECT_EQ(request.getOptions(), nullptr);
    KORVAOptionArray* const second = request.getOptions(registry.get());
    EXPECT_NE(second, nullptr);
    EXPECT_NE(second, first);
    EXPECT_EQ(registry->size(), 2U);
}

TEST(Message, SetterKeepsThePointerAndLeavesWhatStoodThere) {
    KORVAOptionArray first;
    KORVAOptionArray second;
    KORVAAsynchRun_Request request;
    request.setOptions(&first);
    request.setOptions(&second);
    EXPECT_EQ(request.getOptions(), &second);
    EXPECT_EQ(first.size(), 0U);
}

TEST(Message, RefusesToCreateAnAbstractParameter) {
    const Registry registry = makeRegistry();
    KORVAParameterCollectParameterValuesSpecification_Request request;
    EXPECT_EQ(request.getSpecification(nullptr), nullptr);
    EXPECT_ASSERTION(
        request.getSpecification(registry.get()),
        "ZEL_ASSERT_NAMED(false, \"Creation on get not supported on abstract types\");");
    KORVAReportServiceReportSpecification specification;
    request.setSpecification(&specification);
    EXPECT_EQ(request.getSpecification(registry.get()), &specification);
    EXPECT_EQ(registry->size(), 0U);
}

TEST(Message, ValueIsAbsentUntilItIsSet) {
    KORVADispatcherStopService_Request request;
    EXPECT_EQ(request.getImmediately(), nullptr);
    request.setImmediately(true);
    ASSERT_NE(request.getImmediately(), nullptr);
    EXPECT_TRUE(*request.getImmediately());
    request.resetImmediately();
    EXPECT_EQ(request.getImmediately(), nullptr);
    KORVADelete_Reply reply;
    EXPECT_EQ(reply.getCount(), nullptr);
    reply.setCount(-3);
    ASSERT_NE(reply.getCount(), nullptr);
    EXPECT_EQ(*reply.getCount(), -3);
    reply.resetCount();
    EXPECT_EQ(reply.getCount(), nullptr);
}

TEST(Message, TextIsNotCopied) {
    KORVARS_testDataSourceConnection_2_Request request;
    EXPECT_EQ(request.getUsername(), nullptr);
    const char text[] = "user";
    request.setUsername(text);
    EXPECT_EQ(request.getUsername(), text);
    EXPECT_EQ(request.getChildObject("username", false), text);
}

// What happens when a getter can't register what it made

template <class Action>
KORVAOptionArray* getWith(KORVAAsynchRun_Request& request, Action action) {
    ThrowingRegistry<Action> registry(action);
    return request.getOptions(&registry);
}

TEST(Message, BadAllocInAGetterArrivesAsOutOfMemoryError) {
    KORVAAsynchRun_Request request;
    EXPECT_THROW(getWith(request, [] { throw std::bad_alloc(); }), ZELOutOfMemoryError);
    EXPECT_EQ(request.getOptions(), nullptr);
}

TEST(Message, StdExceptionInAGetterArrivesWithItsText) {
    KORVAAsynchRun_Request request;
    try {
        getWith(request, [] { throw std::runtime_error("the text"); });
        FAIL();
    } catch (const ZELStdExceptionError& error) {
        EXPECT_STREQ(error.getText(), "the text");
    }
    EXPECT_EQ(request.getOptions(), nullptr);
}

TEST(Message, ThrowableInAGetterGetsOneMoreTraceLine) {
    KORVAAsynchRun_Request request;
    try {
        getWith(request, [] { ZEL_THROW(KORVAException(0), "registering"); });
        FAIL();
    } catch (const KORVAException& error) {
        EXPECT_EQ(error.getBackTrace().size(), 2U);
        EXPECT_TRUE(korva::test::isThrownBy(error, "registering"));
    }
    EXPECT_EQ(request.getOptions(), nullptr);
}

TEST(Message, ExceptionOfNeitherFamilyPassesAGetterUnchanged) {
    KORVAAsynchRun_Request request;
    EXPECT_THROW(getWith(request, [] { throw 3; }), int);
    EXPECT_EQ(request.getOptions(), nullptr);
}

// Registry and header

TEST(Message, MakesOneRegistryAndKeepsIt) {
    KORVAAsynchRun_Request request;
    KORVAObjectRegistryI* const registry = request.getObjectRegistry();
    ASSERT_NE(registry, nullptr);
    EXPECT_EQ(request.getObjectRegistry(), registry);
    EXPECT_EQ(registry->getReferenceCount(), 1U);
}

TEST(Message, HoldsAReferenceOnItsRegistry) {
    const Registry first = makeRegistry();
    const Registry second = makeRegistry();
    {
        KORVAAsynchRun_Request request;
        request.setObjectRegistry(first.get());
        EXPECT_EQ(request.getObjectRegistry(), first.get());
        EXPECT_EQ(first->getReferenceCount(), 2U);
        request.setObjectRegistry(second.get());
        EXPECT_EQ(request.getObjectRegistry(), second.get());
        EXPECT_EQ(first->getReferenceCount(), 1U);
        EXPECT_EQ(second->getReferenceCount(), 2U);
    }
    EXPECT_EQ(second->getReferenceCount(), 1U);
}

TEST(Message, KeepsItsRegistryWhenThatIsSetAgain) {
    KORVAAsynchRun_Request request;
    KORVAObjectRegistryI* const registry = request.getObjectRegistry();
    request.setObjectRegistry(registry);
    EXPECT_EQ(request.getObjectRegistry(), registry);
    EXPECT_EQ(registry->getReferenceCount(), 1U);
}

TEST(Message, MakesANewRegistryAfterNullWasSet) {
    const Registry registry = makeRegistry();
    KORVAAsynchRun_Request request;
    request.setObjectRegistry(registry.get());
    request.setObjectRegistry(nullptr);
    EXPECT_EQ(registry->getReferenceCount(), 1U);
    EXPECT_NE(request.getObjectRegistry(), nullptr);
    EXPECT_NE(request.getObjectRegistry(), registry.get());
}

TEST(Message, ParametersLiveAsLongAsTheRegistry) {
    const ZELSmartPointer<KORVAObjectRegistryI> registry = KORVAObjectRegistry::create();
    KORVAOptionArray* options = nullptr;
    {
        const ZELSmartPointer<KORVAMessageI> message = new KORVAAsynchRun_Request;
        message->setObjectRegistry(registry.get());
        options =
            static_cast<KORVAAsynchRun_Request&>(*message).getOptions(message->getObjectRegistry());
    }
    EXPECT_EQ(options->getObjectType(), Type::eKORVAOptionArray);
}

TEST(Message, GivesNoHeaderWithoutARegistry) {
    KORVAAsynchRun_Request request;
    EXPECT_EQ(request.getHalyardHeader(nullptr), nullptr);
    EXPECT_EQ(request.getHalyardHeader(nullptr), nullptr);
}

TEST(Message, CreatesAndRegistersItsHeaderOnce) {
    const Registry registry = makeRegistry();
    KORVAAsynchRun_Request request;
    KORVAHalyardHeader* const header = request.getHalyardHeader(registry.get());
    ASSERT_NE(header, nullptr);
    EXPECT_EQ(registry->size(), 1U);
    EXPECT_EQ(request.getHalyardHeader(registry.get()), header);
    EXPECT_EQ(request.getHalyardHeader(nullptr), header);
    EXPECT_EQ(registry->size(), 1U);
}

TEST(Message, KeepsTheHeaderThatIsSet) {
    const Registry registry = makeRegistry();
    KORVAHalyardHeader header;
    KORVAAsynchRun_Request request;
    request.setHalyardHeader(&header);
    EXPECT_EQ(request.getHalyardHeader(registry.get()), &header);
    request.setHalyardHeader(nullptr);
    EXPECT_EQ(request.getHalyardHeader(nullptr), nullptr);
    EXPECT_EQ(registry->size(), 0U);
}

// Access by name

TEST(Message, AssertsOnNullNames) {
    KORVAAsynchRun_Request request;
    EXPECT_ASSERTION(request.getChildObject(nullptr, false), nameAssertion);
    EXPECT_ASSERTION(request.getChildType(nullptr), nameAssertion);
    EXPECT_ASSERTION(request.setChildObject(nullptr, nullptr, Type::eString), nameAssertion);
}

TEST(Message, IgnoresTheEmptyName) {
    KORVAAsynchRun_Request request;
    KORVAOptionArray options;
    request.setChildObject("", &options, Type::eKORVAOptionArray);
    request.setChildObject("", nullptr, Type::eString);
    EXPECT_EQ(request.getOptions(), nullptr);
    EXPECT_EQ(request.getChildObject("", true), nullptr);
    EXPECT_EQ(request.getChildType(""), Type::e_Unknown);
}

TEST(Message, IgnoresNamesThatItLacks) {
    KORVAAsynchRun_Request request;
    KORVAOptionArray options;
    for (const char* const name :
         {"option", "optionss", "Options", "conversation", "no word of the schema"}) {
        request.setChildObject(name, &options, Type::eKORVAOptionArray);
        request.setChildObject(name, nullptr, Type::eString);
        EXPECT_EQ(request.getChildObject(name, true), nullptr) << name;
        EXPECT_EQ(request.getChildType(name), Type::e_Unknown) << name;
    }
    EXPECT_EQ(request.getOptions(), nullptr);
}

TEST(Message, FindsAParameterByAnyPointerToItsName) {
    const Registry registry = makeRegistry();
    KORVAAsynchRun_Request request;
    KORVAOptionArray* const options = request.getOptions(registry.get());
    const std::string copy = "options";
    const char* const word = tarnsymbols1::getChar(ZELUtCrc32::crc32("options", 0));
    EXPECT_EQ(request.getChildObject(copy.c_str(), false), options);
    EXPECT_EQ(request.getChildObject(word, false), options);
    EXPECT_EQ(request.getChildType(word), Type::eKORVAOptionArray);
    // A word of the schema that is none of the message's names.
    const char* const other = tarnsymbols1::getChar(ZELUtCrc32::crc32("conversation", 0));
    ASSERT_NE(other, nullptr);
    EXPECT_EQ(request.getChildObject(other, false), nullptr);
}

TEST(Message, UnsetObjectIsNullAlsoForWriting) {
    KORVAAsynchRun_Request request;
    EXPECT_EQ(request.getChildObject("options", false), nullptr);
    EXPECT_EQ(request.getChildObject("options", true), nullptr);
    EXPECT_EQ(request.getOptions(), nullptr);
}

TEST(Message, ChildTypeIsDeclaredUntilAnObjectIsSet) {
    KORVAParameterCollectParameterValuesSpecification_Request request;
    EXPECT_EQ(request.getChildType("specification"), Type::eKORVAAsynchSpecification);
    KORVAReportServiceReportSpecification specification;
    request.setSpecification(&specification);
    EXPECT_EQ(request.getChildType("specification"), Type::eKORVAReportServiceReportSpecification);
    request.setSpecification(nullptr);
    EXPECT_EQ(request.getChildType("specification"), Type::eKORVAAsynchSpecification);
}

TEST(Message, ChildTypeOfAPlainParameterIsThePlainType) {
    const KORVARS_testDataSourceConnection_2_Request test;
    EXPECT_EQ(test.getChildType("username"), Type::eString);
    EXPECT_EQ(test.getChildType("encryptedPassword"), Type::eBase64Binary);
    EXPECT_EQ(KORVADispatcherStopService_Request().getChildType("immediately"), Type::eBoolean);
    EXPECT_EQ(KORVADelete_Reply().getChildType("count"), Type::eInt);
}

TEST(Message, AbsentBooleanBecomesFalseWhenItIsGotForWriting) {
    KORVADispatcherStopService_Request request;
    EXPECT_EQ(request.getChildObject("immediately", false), nullptr);
    EXPECT_EQ(request.getImmediately(), nullptr);
    void* const value = request.getChildObject("immediately", true);
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(request.getImmediately(), value);
    EXPECT_FALSE(*request.getImmediately());
    *static_cast<bool*>(value) = true;
    EXPECT_TRUE(*request.getImmediately());
    EXPECT_EQ(request.getChildObject("immediately", false), value);
}

TEST(Message, AbsentIntBecomesZeroWhenItIsGotForWriting) {
    KORVADelete_Reply reply;
    EXPECT_EQ(reply.getChildObject("count", false), nullptr);
    void* const value = reply.getChildObject("count", true);
    ASSERT_NE(value, nullptr);
    ASSERT_EQ(reply.getCount(), value);
    EXPECT_EQ(*reply.getCount(), 0);
}

// Storing by name

TEST(Message, StoresAnObjectOfTheDeclaredClass) {
    KORVAAsynchRun_Request request;
    KORVAOptionArray options;
    request.setChildObject("options", &options, Type::eKORVAOptionArray);
    EXPECT_EQ(request.getOptions(), &options);
    request.setChildObject("options", nullptr, Type::eKORVAOptionArray);
    EXPECT_EQ(request.getOptions(), nullptr);
}

TEST(Message, StoresAnObjectOfADerivedClass) {
    KORVAParameterCollectParameterValuesSpecification_Request request;
    KORVAReportServiceReportSpecification specification;
    request.setChildObject("specification", &specification, specification.getObjectType());
    EXPECT_EQ(request.getSpecification(), &specification);
}

TEST(Message, RefusesAPlainTypeForAnObject) {
    KORVAAsynchRun_Request request;
    KORVAOptionArray options;
    request.setOptions(&options);
    EXPECT_TYPE_ERROR(request.setChildObject("options", &options, Type::eString),
                      "asynchRun_Request", "options", "bus:optionArray", "xs:string");
    EXPECT_TYPE_ERROR(request.setChildObject("options", nullptr, Type::eInt), "asynchRun_Request",
                      "options", "bus:optionArray", "xs:int");
    EXPECT_EQ(request.getOptions(), &options);
}

TEST(Message, RefusesAnObjectOfAnotherClass) {
    KORVAAsynchRun_Request request;
    KORVAParameterValueArray values;
    EXPECT_TYPE_ERROR(request.setChildObject("options", &values, Type::eKORVAParameterValueArray),
                      "asynchRun_Request", "options", "bus:optionArray", "bus:parameterValueArray");
    KORVAFolder folder;
    KORVAParameterCollectParameterValuesSpecification_Request collect;
    EXPECT_TYPE_ERROR(collect.setChildObject("specification", &folder, Type::eKORVAFolder),
                      "parameterCollectParameterValuesSpecification_Request", "specification",
                      "bus:asynchSpecification", "bus:folder");
    EXPECT_EQ(request.getOptions(), nullptr);
    EXPECT_EQ(collect.getSpecification(), nullptr);
}

TEST(Message, KeepsTheTextOfTheGivenBuffer) {
    KORVARS_testDataSourceConnection_2_Request request;
    ZELByteBuffer buffer;
    buffer.appendChars("user", 4);
    for (const ObjectType type : {Type::eString, Type::eTime, Type::eDateTime, Type::eQName}) {
        request.setUsername(nullptr);
        request.setChildObject("username", &buffer, type);
        EXPECT_EQ(request.getUsername(), buffer.str());
    }
    request.setChildObject("username", nullptr, Type::eString);
    EXPECT_EQ(request.getUsername(), nullptr);
}

TEST(Message, TakesANullTextOfAnyType) {
    KORVARS_testDataSourceConnection_2_Request request;
    request.setUsername("user");
    request.setChildObject("username", nullptr, Type::eKORVAFolder);
    EXPECT_EQ(request.getUsername(), nullptr);
}

TEST(Message, RefusesOtherTypesForText) {
    KORVARS_testDataSourceConnection_2_Request request;
    int number = 1;
    EXPECT_TYPE_ERROR(request.setChildObject("username", &number, Type::eInt),
                      "RS_testDataSourceConnection_2_Request", "username", "xs:string", "xs:int");
    KORVAFolder folder;
    EXPECT_TYPE_ERROR(request.setChildObject("username", &folder, Type::eKORVAFolder),
                      "RS_testDataSourceConnection_2_Request", "username", "xs:string",
                      "bus:folder");
    EXPECT_EQ(request.getUsername(), nullptr);
}

TEST(Message, RefusesStreamedText) {
    KORVARS_testDataSourceConnection_2_Request request;
    // The type has no text of its own, so that telling it fails.
    EXPECT_ASSERTION(
        request.setChildObject("username", const_cast<char*>("x"), Type::eCharStreamable),
        "ZEL_ASSERT_NAMED(false, \"KORVASchemaTypesFactory::objectTypeToXSIType(): unknown object "
        "type.\");");
    EXPECT_EQ(request.getUsername(), nullptr);
}

TEST(Message, CopiesABooleanAndMarksItPresent) {
    KORVADispatcherStopService_Request request;
    bool value = true;
    request.setChildObject("immediately", &value, Type::eBoolean);
    ASSERT_NE(request.getImmediately(), nullptr);
    EXPECT_NE(request.getImmediately(), &value);
    EXPECT_TRUE(*request.getImmediately());
}

TEST(Message, NullClearsAValueAndMarksItAbsent) {
    KORVADispatcherStopService_Request request;
    request.setImmediately(true);
    request.setChildObject("immediately", nullptr, Type::eKORVAFolder);
    EXPECT_EQ(request.getImmediately(), nullptr);
    EXPECT_FALSE(*static_cast<bool*>(request.getChildObject("immediately", true)));
    KORVADelete_Reply reply;
    reply.setCount(5);
    reply.setChildObject("count", nullptr, Type::eInt);
    EXPECT_EQ(reply.getCount(), nullptr);
    EXPECT_EQ(*static_cast<int*>(reply.getChildObject("count", true)), 0);
}

TEST(Message, ConvertsNumbersByTheirType) {
    KORVADelete_Reply reply;
    int number = -12;
    reply.setChildObject("count", &number, Type::eInteger);
    EXPECT_EQ(*reply.getCount(), -12);
    float decimal = 3.75F;
    reply.setChildObject("count", &decimal, Type::eDecimal);
    EXPECT_EQ(*reply.getCount(), 3);
    bool yes = true;
    reply.setChildObject("count", &yes, Type::eBoolean);
    EXPECT_EQ(*reply.getCount(), 1);
    KORVADispatcherStopService_Request request;
    request.setChildObject("immediately", &number, Type::eInt);
    EXPECT_TRUE(*request.getImmediately());
}

TEST(Message, RefusesOtherTypesForAValue) {
    KORVADispatcherStopService_Request request;
    KORVAFolder folder;
    EXPECT_TYPE_ERROR(request.setChildObject("immediately", &folder, Type::eKORVAFolder),
                      "dispatcherStopService_Request", "immediately", "xs:boolean", "bus:folder");
    ZELByteBuffer text;
    EXPECT_TYPE_ERROR(request.setChildObject("immediately", &text, Type::eString),
                      "dispatcherStopService_Request", "immediately", "xs:boolean", "xs:string");
    EXPECT_EQ(request.getImmediately(), nullptr);
    KORVADelete_Reply reply;
    EXPECT_TYPE_ERROR(reply.setChildObject("count", &folder, Type::eKORVAFolder), "delete_Reply",
                      "count", "xs:int", "bus:folder");
    EXPECT_EQ(reply.getCount(), nullptr);
}

TEST(Message, KeepsABinary) {
    KORVARS_testDataSourceConnection_2_Request request;
    KORVAXSBase64Binary binary("abc", 3);
    request.setChildObject("encryptedPassword", &binary, Type::eBase64Binary);
    EXPECT_EQ(request.getEncryptedPassword(), &binary);
    EXPECT_EQ(request.getChildObject("encryptedPassword", false), &binary);
    request.setChildObject("encryptedPassword", nullptr, Type::eString);
    EXPECT_EQ(request.getEncryptedPassword(), nullptr);
}

TEST(Message, RefusesOtherTypesForABinary) {
    KORVARS_testDataSourceConnection_2_Request request;
    ZELByteBuffer text;
    EXPECT_TYPE_ERROR(request.setChildObject("encryptedPassword", &text, Type::eString),
                      "RS_testDataSourceConnection_2_Request", "encryptedPassword",
                      "xs:base64Binary", "xs:string");
    KORVAFolder folder;
    EXPECT_TYPE_ERROR(request.setChildObject("encryptedPassword", &folder, Type::eKORVAFolder),
                      "RS_testDataSourceConnection_2_Request", "encryptedPassword",
                      "xs:base64Binary", "bus:folder");
    EXPECT_EQ(request.getEncryptedPassword(), nullptr);
}

TEST(Message, EndsWithItsLastReference) {
    auto* const request = new KORVAAsynchRun_Request;
    EXPECT_EQ(request->getReferenceCount(), 0U);
    const Registry registry = makeRegistry();
    request->setObjectRegistry(registry.get());
    request->addReference();
    request->addReference();
    request->removeReference();
    EXPECT_EQ(registry->getReferenceCount(), 2U);
    request->removeReference();
    EXPECT_EQ(registry->getReferenceCount(), 1U);
}

}  // namespace
