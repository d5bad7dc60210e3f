#include "tests/support/ExpectThrow.h"
#include "tests/support/ForEachFailingAllocation.h"

#include <korva/KORVAObjectRegistry.h>
#include <korva/KORVASchedule.h>
#include <korva/KORVAScheduleArray.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVAUnknownSchemaType.h>
#include <zel/ZELUtCrc32.h>

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>

namespace {

using Factory = KORVASchemaTypesFactory;
using Type = KORVASchemaTypeI::ObjectType;
using Object = KORVASchemaTypeI;

const Factory& factory() {
    return Factory::getInstance();
}

/// A number that is no type's identity.
constexpr Type stranger = static_cast<Type>(15);

TEST(SchemaTypesFactory, IsOneInstance) {
    EXPECT_EQ(&Factory::getInstance(), &Factory::getInstance());
}

TEST(SchemaTypesFactory, PlainTypesAre1To11AndAllOthersAreGenerated) {
    EXPECT_TRUE(Factory::isGeneratedType(Object::e_Unknown));
    for (int type = 1; type <= 11; ++type)
        EXPECT_FALSE(Factory::isGeneratedType(static_cast<Type>(type))) << type;
    EXPECT_TRUE(Factory::isGeneratedType(static_cast<Type>(12)));
    EXPECT_TRUE(Factory::isGeneratedType(static_cast<Type>(-1)));
    EXPECT_TRUE(Factory::isGeneratedType(static_cast<Type>(std::numeric_limits<int>::min())));
    EXPECT_TRUE(Factory::isGeneratedType(static_cast<Type>(std::numeric_limits<int>::max())));
}

TEST(SchemaTypesFactory, TextTypesAre1And5And6And10And11) {
    for (int type = -20; type <= 20; ++type)
        EXPECT_EQ(Factory::isString(static_cast<Type>(type)),
                  type == 1 || type == 5 || type == 6 || type == 10 || type == 11)
            << type;
}

TEST(SchemaTypesFactory, BinaryTypeIs8) {
    for (int type = -20; type <= 20; ++type)
        EXPECT_EQ(Factory::isBase64(static_cast<Type>(type)), type == 8) << type;
}

TEST(SchemaTypesFactory, ArrayTypesAreThoseOfTheSchemasArrays) {
    EXPECT_TRUE(Factory::isArrayType(Object::eKORVAScheduleArray));
    EXPECT_TRUE(Factory::isArrayType(Object::eKORVAStringArray));
    EXPECT_TRUE(Factory::isArrayType(Object::eKORVABooleanArray));
    EXPECT_FALSE(Factory::isArrayType(Object::eKORVASchedule));
    EXPECT_FALSE(Factory::isArrayType(Object::eKORVABaseClassArrayProp));
    EXPECT_FALSE(Factory::isArrayType(Object::e_Unknown));
    EXPECT_FALSE(Factory::isArrayType(Object::eString));
    EXPECT_FALSE(Factory::isArrayType(Object::eKORVAUndocumentedFaultDetailArray));
}

TEST(SchemaTypesFactory, FindsGeneratedTypesByTheirBareName) {
    EXPECT_EQ(factory().busTypeToObjectType("schedule"), Object::eKORVASchedule);
    EXPECT_EQ(factory().busTypeToObjectType("account"), Object::eKORVAAccount);
    EXPECT_EQ(factory().busTypeToObjectType("xmlEncodedXMLProp"), Object::eKORVAXmlEncodedXMLProp);
    EXPECT_EQ(factory().busTypeToObjectType("Moat"), Object::eKORVAMoat);
    EXPECT_EQ(factory().busTypeToObjectType("scheduleArray"), Object::eKORVAScheduleArray);
    EXPECT_EQ(factory().busTypeToObjectType("severityEnum"), Object::eKORVASeverityEnum);
    EXPECT_EQ(factory().busTypeToObjectType("uiClass"), Object::eKORVAUiClass);
}

TEST(SchemaTypesFactory, FindsNoTypeByAPrefixedOrForeignName) {
    for (const char* const name : {"bus:account", "", "Schedule", "schedul", "schedules", "string",
                                   "moat", "KORVASchedule", "~", "\xFF", "A"})
        EXPECT_EQ(factory().busTypeToObjectType(name), Object::e_Unknown) << name;
    EXPECT_ASSERTION(factory().busTypeToObjectType(nullptr), "ZEL_ASSERT(busType);");
}

TEST(SchemaTypesFactory, FindsArraysByTheirElementsName) {
    EXPECT_EQ(factory().busArrayTypeToObjectType("schedule"), Object::eKORVAScheduleArray);
    EXPECT_EQ(factory().busArrayTypeToObjectType("classEnum"), Object::eKORVAClassEnumArray);
    EXPECT_EQ(factory().busArrayTypeToObjectType("guid"), Object::eKORVAGuidArray);
    EXPECT_EQ(factory().busArrayTypeToObjectType("schedule[]"), Object::e_Unknown);
    EXPECT_EQ(factory().busArrayTypeToObjectType("scheduleArray"), Object::e_Unknown);
    EXPECT_EQ(factory().busArrayTypeToObjectType("string"), Object::e_Unknown);
    EXPECT_EQ(factory().busArrayTypeToObjectType(""), Object::e_Unknown);
    EXPECT_ASSERTION(factory().busArrayTypeToObjectType(nullptr), "ZEL_ASSERT(arrayType);");
}

TEST(SchemaTypesFactory, FindsPlainTypesByTheirLocalName) {
    const char* const names[] = {"string",   "int",     "integer",      "decimal", "time",
                                 "dateTime", "boolean", "base64Binary", "float",   "QName"};
    int type = 0;
    for (const char* const name : names)
        EXPECT_EQ(factory().xsiTypeToObjectType(name), static_cast<Type>(++type)) << name;
    for (const char* const name : {"", "xs:string", "String", "double", "schedule", "_unknown"})
        EXPECT_EQ(factory().xsiTypeToObjectType(name), Object::e_Unknown) << name;
    EXPECT_ASSERTION(factory().xsiTypeToObjectType(nullptr), "ZEL_ASSERT(xsiType);");
}

TEST(SchemaTypesFactory, FindsAnyTypeByItsName) {
    EXPECT_EQ(factory().stringToObjectType("schedule"), Object::eKORVASchedule);
    EXPECT_EQ(factory().stringToObjectType("string"), Object::eString);
    EXPECT_EQ(factory().stringToObjectType("QName"), Object::eQName);
    EXPECT_EQ(factory().stringToObjectType("xs:string"), Object::e_Unknown);
    EXPECT_EQ(factory().stringToObjectType("bus:schedule"), Object::e_Unknown);
    EXPECT_EQ(factory().stringToObjectType("nothing like it"), Object::e_Unknown);
    EXPECT_EQ(factory().stringToObjectType(""), Object::e_Unknown);
    EXPECT_EQ(factory().stringToObjectType(nullptr), Object::e_Unknown);
}

TEST(SchemaTypesFactory, TellsTheXsiTextOfEveryType) {
    const char* const plain[] = {"_unknown",        "xs:string", "xs:int",      "xs:integer",
                                 "xs:decimal",      "xs:time",   "xs:dateTime", "xs:boolean",
                                 "xs:base64Binary", "xs:float",  "xs:QName"};
    for (int type = 0; type <= 10; ++type)
        EXPECT_STREQ(factory().objectTypeToXSIType(static_cast<Type>(type)), plain[type]);
    EXPECT_STREQ(factory().objectTypeToXSIType(Object::eKORVASchedule), "bus:schedule");
    EXPECT_STREQ(factory().objectTypeToXSIType(Object::eKORVAUiClass), "bus:uiClass");
    EXPECT_STREQ(factory().objectTypeToXSIType(Object::eKORVAScheduleArray), "bus:scheduleArray");
    EXPECT_STREQ(factory().objectTypeToXSIType(Object::eKORVAWarden), "bus:Warden");
    EXPECT_STREQ(factory().objectTypeToXSIType(Object::eKORVASQL), "bus:SQL");
}

TEST(SchemaTypesFactory, XsiTextOfTheHandWrittenClassesIsTheirClassName) {
    EXPECT_STREQ(factory().objectTypeToXSIType(Object::eKORVAUndocumentedFaultDetail),
                 "KORVAUndocumentedFaultDetail");
    EXPECT_STREQ(factory().objectTypeToXSIType(Object::eKORVAUndocumentedFaultDetailArray),
                 "KORVAUndocumentedFaultDetailArray");
    EXPECT_STREQ(factory().objectTypeToXSIType(Object::eKORVASOAPFault), "KORVASOAPFault");
}

TEST(SchemaTypesFactory, RefusesTheXsiTextOfAnUnknownType) {
    const char* const text =
        "ZEL_ASSERT_NAMED(false, \"KORVASchemaTypesFactory::objectTypeToXSIType(): unknown object "
        "type.\");";
    EXPECT_ASSERTION(factory().objectTypeToXSIType(Object::eCharStreamable), text);
    EXPECT_ASSERTION(factory().objectTypeToXSIType(stranger), text);
    EXPECT_ASSERTION(factory().objectTypeToXSIType(static_cast<Type>(-1)), text);
}

TEST(SchemaTypesFactory, TellsTheElementsOfAnArrayType) {
    const std::pair<Type, const char*> rows[] = {
        {Object::eKORVABaseParameterArray, "bus:baseParameter"},
        {Object::eKORVAScheduleArray, "bus:schedule"},
        {Object::eKORVAClassEnumArray, "bus:classEnum"},
        {Object::eKORVAGuidArray, "bus:guid"},
        {Object::eKORVAStringArray, "xs:string"},
        {Object::eKORVAAnyTypeArray, "xs:string"},
        {Object::eKORVAAnyURIArray, "xs:string"},
        {Object::eKORVADurationArray, "xs:string"},
        {Object::eKORVALanguageArray, "xs:string"},
        {Object::eKORVANmtokenArray, "xs:string"},
        {Object::eKORVATokenArray, "xs:string"},
        {Object::eKORVADateTimeArray, "xs:dateTime"},
        {Object::eKORVAIntArray, "xs:int"},
        {Object::eKORVAIntegerArray, "xs:integer"},
        {Object::eKORVABooleanArray, "xs:boolean"},
    };
    for (const auto& [type, text] : rows)
        EXPECT_STREQ(Factory::objectTypeToArrayType(type), text);
    EXPECT_EQ(Factory::objectTypeToArrayType(Object::eKORVASchedule), nullptr);
    EXPECT_EQ(Factory::objectTypeToArrayType(Object::eString), nullptr);
    EXPECT_EQ(Factory::objectTypeToArrayType(stranger), nullptr);
}

TEST(SchemaTypesFactory, WritesTheSoapArrayType) {
    KORVAScheduleArray array;
    std::string text("what stood here before");
    factory().objectTypeToArrayType(Object::eKORVAScheduleArray, &array, text);
    EXPECT_EQ(text, "bus:schedule[0]");
    for (int i = 0; i < 1234; ++i)
        array.push_back(nullptr);
    factory().objectTypeToArrayType(Object::eKORVAScheduleArray, &array, text);
    EXPECT_EQ(text, "bus:schedule[1234]");
    factory().objectTypeToArrayType(Object::eKORVAScheduleArray, nullptr, text);
    EXPECT_EQ(text, "bus:schedule[]");
    factory().objectTypeToArrayType(Object::eKORVAStringArray, nullptr, text);
    EXPECT_EQ(text, "xs:string[]");
}

TEST(SchemaTypesFactory, WritesTheCountAs32BitUnsigned) {
    class Huge : public KORVAStringArray {
    public:
        std::size_t size() const override { return 0x1FFFFFFFEU; }
    } huge;
    std::string text;
    factory().objectTypeToArrayType(Object::eKORVAStringArray, &huge, text);
    EXPECT_EQ(text, "xs:string[4294967294]");
}

TEST(SchemaTypesFactory, RefusesTheArrayTypeOfWhatIsNoArray) {
    const char* const assertion =
        "ZEL_ASSERT_NAMED(arrayType, \"KORVASchemaTypesFactory::objectTypeToArrayType(): unknown "
        "object type.\");";
    std::string text("kept");
    EXPECT_ASSERTION(factory().objectTypeToArrayType(Object::eKORVASchedule, nullptr, text),
                     assertion);
    EXPECT_ASSERTION(factory().objectTypeToArrayType(Object::eString, nullptr, text), assertion);
    EXPECT_EQ(text, "kept");
}

TEST(SchemaTypesFactory, CreatesAnObjectThatIsNotRegistered) {
    const std::size_t live = korva::test::liveAllocations();
    {
        const std::unique_ptr<KORVASchemaTypeI> object(factory().create(Object::eKORVASchedule));
        EXPECT_EQ(object->getObjectType(), Object::eKORVASchedule);
        EXPECT_NE(dynamic_cast<KORVASchedule*>(object.get()), nullptr);
    }
    EXPECT_EQ(korva::test::liveAllocations(), live);
}

TEST(SchemaTypesFactory, RefusesToCreateAbstractPlainAndUnknownTypes) {
    const char* const function = "KORVASchemaTypesFactory::create()";
    EXPECT_NUMBERED(factory().create(Object::eKORVAUiClass), 0xEA47EC7BU, function, "bus:uiClass");
    EXPECT_NUMBERED(factory().create(Object::eKORVARunOption), 0xEA47EC7BU, function,
                    "bus:runOption");
    EXPECT_NUMBERED(factory().create(Object::eKORVABaseProp), 0xEA47EC7BU, function,
                    "bus:baseProp");
    EXPECT_NUMBERED(factory().create(Object::e_Unknown), 0xEA47EC7BU, function, "_unknown");
    EXPECT_NUMBERED(factory().create(stranger), 0xEA47EC7BU, function, "_unknown");
    EXPECT_NUMBERED(factory().create(Object::eCharStreamable), 0xEA47EC7BU, function, "_unknown");
    EXPECT_NUMBERED(factory().create(Object::eString), 0xEA47EC7BU, function, "xs:string");
}

TEST(SchemaTypesFactory, CreateRaisesOutOfMemoryErrorAndLeavesNothing) {
    EXPECT_EQ(korva::test::forEachFailingAllocation(
                  [] { delete factory().create(Object::eKORVASchedule); }),
              2u);
    EXPECT_EQ(korva::test::forEachFailingAllocation(
                  [] { delete factory().create(Object::eKORVAScheduleArray); }),
              1u);
}

TEST(SchemaTypesFactory, CopyOfAnArrayOfTwoRegistersThreeObjects) {
    KORVASchedule first;
    KORVASchedule second;
    KORVAScheduleArray array;
    array.push_back(&first);
    array.push_back(&second);
    const ZELSmartPointer<KORVAObjectRegistry> registry(KORVAObjectRegistry::create());
    const KORVASchemaTypeI& copy = factory().createCopy(array, *registry);
    EXPECT_EQ(registry->size(), 3u);
    EXPECT_TRUE(array == copy);
    EXPECT_NE(&copy, &array);
}

TEST(SchemaTypesFactory, CopyOfAnUnknownTypeIsRefused) {
    const ZELSmartPointer<KORVAObjectRegistry> registry(KORVAObjectRegistry::create());
    const KORVAUnknownSchemaType object(std::string("stranger"));
    EXPECT_NUMBERED(factory().createCopy(object, *registry), 0xEA47EC7BU,
                    "KORVASchemaTypesFactory::createCopy()", "_unknown");
    EXPECT_EQ(registry->size(), 0u);
}

TEST(SchemaTypesFactory, CopyAsksTheObjectWhetherItIsWhatItSays) {
    // Says that it is a schedule, and denies it when asked.
    class Impostor : public KORVAUnknownSchemaType {
    public:
        ObjectType getObjectType() const override { return eKORVASchedule; }
    };
    const char* const assertion = "ZEL_ASSERT(obj.isa(KORVASchemaTypeI::eKORVASchedule));";
    const ZELSmartPointer<KORVAObjectRegistry> registry(KORVAObjectRegistry::create());
    Impostor impostor;
    EXPECT_ASSERTION(factory().createCopy(impostor, *registry), assertion);
    KORVAScheduleArray array;
    array.push_back(reinterpret_cast<KORVASchedule*>(&impostor));
    EXPECT_ASSERTION(factory().createCopy(array, *registry), assertion);
}

TEST(SchemaTypesFactory, TypeErrorTellsClassChildAndBothTypes) {
    EXPECT_TYPE_ERROR(
        Factory::typeError("schedule", "active", Object::eKORVABooleanProp, Object::eInt),
        "schedule", "active", "bus:booleanProp", "xs:int");
    EXPECT_TYPE_ERROR(Factory::typeError("a", "b", Object::e_Unknown, Object::eKORVASOAPFault), "a",
                      "b", "_unknown", "KORVASOAPFault");
}

TEST(SchemaTypesFactory, TypeErrorWithATypeWithoutXsiTextIsAnAssertion) {
    const char* const assertion =
        "ZEL_ASSERT_NAMED(false, \"KORVASchemaTypesFactory::objectTypeToXSIType(): unknown object "
        "type.\");";
    EXPECT_ASSERTION(Factory::typeError("a", "b", Object::eString, Object::eCharStreamable),
                     assertion);
    EXPECT_ASSERTION(Factory::typeError("a", "b", stranger, Object::eString), assertion);
}

TEST(SchemaTypesFactory, NumberedErrorsRaiseOutOfMemoryErrorWhenTheyCannotBeMade) {
    std::size_t failures = 0;
    korva::test::failEachAllocation([&failures] {
        try {
            Factory::typeError("class", "a child with quite a long name", Object::eKORVABooleanProp,
                               Object::eInt);
        } catch (const KORVAException& error) {
            EXPECT_EQ(error.getMessages().size(), 1u);
        } catch (const ZELOutOfMemoryError&) {
            ++failures;
        }
    });
    EXPECT_GT(failures, 0u);
}

TEST(SchemaTypesFactory, LookUpByNameRaisesOutOfMemoryErrorForALongKey) {
    const std::string name(100, 'x');
    EXPECT_GE(korva::test::forEachFailingAllocation(
                  [&] { factory().busArrayTypeToObjectType(name.c_str()); }),
              1u);
}

}  // namespace
