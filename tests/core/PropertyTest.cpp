#include "tests/support/ExpectThrow.h"
#include "tests/support/Registry.h"
#include "tests/support/TextBuffer.h"

#include <korva/KORVAAnyURIProp.h>
#include <korva/KORVABase64BinaryMIMEProp.h>
#include <korva/KORVABase64BinaryProp.h>
#include <korva/KORVABaseClassArray.h>
#include <korva/KORVABaseClassArrayProp.h>
#include <korva/KORVABaseClassProp.h>
#include <korva/KORVABaseParameterAssignmentProp.h>
#include <korva/KORVABaseROLAPCubeConfigurationProp.h>
#include <korva/KORVABooleanProp.h>
#include <korva/KORVADateTimeProp.h>
#include <korva/KORVADecimalProp.h>
#include <korva/KORVADeploymentOptionProp.h>
#include <korva/KORVAEventRefProp.h>
#include <korva/KORVAEventRefPropEnum.h>
#include <korva/KORVAFloatProp.h>
#include <korva/KORVAFolder.h>
#include <korva/KORVAGovernorProp.h>
#include <korva/KORVAGuid.h>
#include <korva/KORVAGuidProp.h>
#include <korva/KORVAIntProp.h>
#include <korva/KORVALumaraOptionProp.h>
#include <korva/KORVALumaraServiceSpecificationProp.h>
#include <korva/KORVAMultilingualStringArray.h>
#include <korva/KORVAMultilingualStringProp.h>
#include <korva/KORVANonNegativeIntegerProp.h>
#include <korva/KORVAOptionProp.h>
#include <korva/KORVAPositiveIntegerProp.h>
#include <korva/KORVAPropEnum.h>
#include <korva/KORVAPropEnumArray.h>
#include <korva/KORVARefProp.h>
#include <korva/KORVARunOptionProp.h>
#include <korva/KORVASchemaInfo.h>
#include <korva/KORVASeverityEnum.h>
#include <korva/KORVASeverityEnumProp.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVAStringArrayProp.h>
#include <korva/KORVAStringProp.h>
#include <korva/KORVATimeProp.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_CharStreamable.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace {

using korva::test::makeRegistry;
using korva::test::Registry;
using korva::test::TextBuffer;
using Object = KORVASchemaTypeI;

TEST(Property, HasSchemaInfoAndValue) {
    KORVAStringProp prop;
    EXPECT_EQ(prop.getChildObjectCount(), 2u);
    std::vector<const char*> names;
    prop.getChildObjectNames(names, true);
    ASSERT_EQ(names.size(), 2u);
    EXPECT_STREQ(names[0], "schemaInfo");
    EXPECT_STREQ(names[1], "value");
    EXPECT_TRUE(prop.isa(Object::eKORVAStringProp));
    EXPECT_TRUE(prop.isa(Object::eKORVABaseProp));
    EXPECT_FALSE(prop.isa(Object::eKORVAAnyURIProp));
}

TEST(Property, SchemaInfoIsCreatedOnGet) {
    const Registry registry = makeRegistry();
    KORVAStringProp prop;
    EXPECT_EQ(prop.getSchemaInfo(), nullptr);
    EXPECT_EQ(prop.getSchemaInfo(nullptr), nullptr);
    KORVASchemaInfo* const info = prop.getSchemaInfo(registry.get());
    ASSERT_NE(info, nullptr);
    EXPECT_EQ(prop.getSchemaInfo(registry.get()), info);
    EXPECT_EQ(registry->size(), 1u);
    EXPECT_EQ(prop.getChildObject("schemaInfo", false), info);
    prop.setSchemaInfo(nullptr);
    EXPECT_EQ(prop.getSchemaInfo(), nullptr);
}

TEST(Property, SchemaInfoIsSetByNameAndChecked) {
    KORVAStringProp prop;
    KORVASchemaInfo info;
    EXPECT_EQ(prop.setChildObject("schemaInfo", &info, Object::eKORVASchemaInfo, nullptr), 0u);
    EXPECT_EQ(prop.getSchemaInfo(), &info);
    KORVAGuid guid;
    EXPECT_TYPE_ERROR(prop.setChildObject("schemaInfo", &guid, Object::eKORVAGuid, nullptr),
                      "baseProp", "schemaInfo", "bus:schemaInfo", "bus:guid");
    int number = 1;
    EXPECT_TYPE_ERROR(prop.setChildObject("schemaInfo", &number, Object::eInt, nullptr), "baseProp",
                      "schemaInfo", "bus:schemaInfo", "xs:int");
    EXPECT_EQ(prop.getSchemaInfo(), &info);
}

TEST(Property, ValueTypesAreThoseOfTheKinds) {
    EXPECT_EQ(KORVAStringProp().getChildType("value"), Object::eString);
    EXPECT_EQ(KORVAAnyURIProp().getChildType("value"), Object::eString);
    EXPECT_EQ(KORVADateTimeProp().getChildType("value"), Object::eDateTime);
    EXPECT_EQ(KORVATimeProp().getChildType("value"), Object::eTime);
    EXPECT_EQ(KORVABase64BinaryProp().getChildType("value"), Object::eBase64Binary);
    EXPECT_EQ(KORVABase64BinaryMIMEProp().getChildType("value"), Object::eBase64Binary);
    EXPECT_EQ(KORVABooleanProp().getChildType("value"), Object::eBoolean);
    EXPECT_EQ(KORVAIntProp().getChildType("value"), Object::eInt);
    EXPECT_EQ(KORVAPositiveIntegerProp().getChildType("value"), Object::eInteger);
    EXPECT_EQ(KORVANonNegativeIntegerProp().getChildType("value"), Object::eInteger);
    EXPECT_EQ(KORVAFloatProp().getChildType("value"), Object::eFloat);
    EXPECT_EQ(KORVADecimalProp().getChildType("value"), Object::eDecimal);
    EXPECT_EQ(KORVAGuidProp().getChildType("value"), Object::eKORVAGuid);
    EXPECT_EQ(KORVASeverityEnumProp().getChildType("value"), Object::eKORVASeverityEnum);
    EXPECT_EQ(KORVAStringArrayProp().getChildType("value"), Object::eKORVAStringArray);
    EXPECT_EQ(KORVAMultilingualStringProp().getChildType("value"),
              Object::eKORVAMultilingualStringArray);
}

template <class Prop, class Value>
void expectValueKind(Value value) {
    Prop prop;
    EXPECT_EQ(prop.getValue(), nullptr);
    prop.setValue(Value{});
    ASSERT_NE(prop.getValue(), nullptr);
    EXPECT_EQ(*prop.getValue(), Value{});
    prop.setValue(value);
    EXPECT_EQ(*prop.getValue(), value);
    EXPECT_EQ(prop.getChildObject("value", false), prop.getValue());
    prop.resetValue();
    EXPECT_EQ(prop.getValue(), nullptr);
    EXPECT_EQ(prop.getChildObject("value", false), nullptr);
    EXPECT_EQ(*static_cast<Value*>(prop.getChildObject("value", true)), value);
    EXPECT_NE(prop.getValue(), nullptr);
}

TEST(Property, ValueKindsTellNoValueFromZero) {
    expectValueKind<KORVABooleanProp>(true);
    expectValueKind<KORVAIntProp>(-5);
    expectValueKind<KORVAPositiveIntegerProp>(5);
    expectValueKind<KORVANonNegativeIntegerProp>(6);
    expectValueKind<KORVAFloatProp>(2.5F);
    expectValueKind<KORVADecimalProp>(-0.25F);
}

TEST(Property, AskingForWriteAccessSetsTheValue) {
    KORVABooleanProp prop;
    const void* const value = prop.getChildObject("value", true);
    ASSERT_NE(value, nullptr);
    EXPECT_FALSE(*static_cast<const bool*>(value));
    ASSERT_NE(prop.getValue(), nullptr);
    EXPECT_FALSE(*prop.getValue());
}

TEST(Property, ValueIsSetByName) {
    KORVAIntProp prop;
    int number = 42;
    EXPECT_EQ(prop.setChildObject("value", &number, Object::eInt, nullptr), 0u);
    EXPECT_EQ(*prop.getValue(), 42);
    KORVAGuid guid;
    EXPECT_TYPE_ERROR(prop.setChildObject("value", &guid, Object::eKORVAGuid, nullptr), "intProp",
                      "value", "xs:int", "bus:guid");
    const TextBuffer text("43");
    EXPECT_TYPE_ERROR(
        prop.setChildObject("value", const_cast<TextBuffer*>(&text), Object::eString, nullptr),
        "intProp", "value", "xs:int", "xs:string");
    EXPECT_EQ(*prop.getValue(), 42);
}

TEST(Property, TextStandsInItsBuffer) {
    KORVAStringProp prop;
    TextBuffer buffer("text");
    EXPECT_EQ(prop.setChildObject("value", &buffer, Object::eString, nullptr), 0u);
    EXPECT_EQ(prop.getValue(), buffer.str());
    EXPECT_EQ(prop.getChildObject("value", false), buffer.str());
    prop.setValue(nullptr);
    EXPECT_EQ(prop.getChildObject("value", false), nullptr);
    KORVADateTimeProp date;
    date.setChildObject("value", &buffer, Object::eDateTime, nullptr);
    EXPECT_EQ(date.getValue(), buffer.str());
    KORVATimeProp time;
    time.setChildObject("value", &buffer, Object::eTime, nullptr);
    EXPECT_EQ(time.getValue(), buffer.str());
    int number = 1;
    EXPECT_TYPE_ERROR(time.setChildObject("value", &number, Object::eInt, nullptr), "timeProp",
                      "value", "xs:time", "xs:int");
    EXPECT_TYPE_ERROR(date.setChildObject("value", &number, Object::eInt, nullptr), "dateTimeProp",
                      "value", "xs:dateTime", "xs:int");
}

TEST(Property, CharStreamableIsStoredUnread) {
    KORVAStringProp prop;
    KORVA_CharStreamable streamable;
    EXPECT_EQ(prop.setChildObject("value", &streamable, Object::eCharStreamable, nullptr), 0u);
    EXPECT_EQ(prop.getValue(), reinterpret_cast<const char*>(&streamable));
    KORVATimeProp time;
    time.setChildObject("value", &streamable, Object::eCharStreamable, nullptr);
    EXPECT_EQ(time.getValue(), streamable.asCharStar());
}

TEST(Property, BinaryIsStoredAsItStands) {
    KORVABase64BinaryProp prop;
    KORVAXSBase64Binary data("x", 1);
    EXPECT_EQ(prop.getValue(), nullptr);
    EXPECT_EQ(prop.setChildObject("value", &data, Object::eBase64Binary, nullptr), 0u);
    EXPECT_EQ(prop.getValue(), &data);
    TextBuffer text("x");
    EXPECT_TYPE_ERROR(prop.setChildObject("value", &text, Object::eString, nullptr),
                      "base64BinaryProp", "value", "xs:base64Binary", "xs:string");
    prop.setValue(nullptr);
    EXPECT_EQ(prop.getChildObject("value", false), nullptr);
}

TEST(Property, ObjectIsCreatedOnGetAndCheckedOnSet) {
    const Registry registry = makeRegistry();
    KORVAGuidProp prop;
    EXPECT_EQ(prop.getValue(), nullptr);
    EXPECT_EQ(prop.getValue(nullptr), nullptr);
    KORVAGuid* const value = prop.getValue(registry.get());
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(prop.getValue(registry.get()), value);
    EXPECT_EQ(registry->size(), 1u);
    KORVASeverityEnum severity;
    EXPECT_TYPE_ERROR(prop.setChildObject("value", &severity, Object::eKORVASeverityEnum, nullptr),
                      "guidProp", "value", "bus:guid", "bus:severityEnum");
    EXPECT_EQ(prop.getValue(), value);
    KORVAGuid guid;
    EXPECT_EQ(prop.setChildObject("value", &guid, Object::eKORVAGuid, nullptr), 0u);
    EXPECT_EQ(prop.getValue(), &guid);
}

TEST(Property, EnumIsCreatedOnGetAndCheckedOnSet) {
    const Registry registry = makeRegistry();
    KORVASeverityEnumProp prop;
    KORVASeverityEnum* const value = prop.getValue(registry.get());
    ASSERT_NE(value, nullptr);
    value->setValue("warn");
    EXPECT_EQ(prop.getChildObject("value", false), value);
    KORVAGuid guid;
    EXPECT_TYPE_ERROR(prop.setChildObject("value", &guid, Object::eKORVAGuid, nullptr),
                      "severityEnumProp", "value", "bus:severityEnum", "bus:guid");
}

template <class Prop>
void expectNoCreation() {
    const Registry registry = makeRegistry();
    Prop prop;
    EXPECT_EQ(prop.getValue(nullptr), nullptr);
    EXPECT_ASSERTION(
        prop.getValue(registry.get()),
        "ZEL_ASSERT_NAMED(false, \"Creation on get not supported on abstract types\");");
    EXPECT_EQ(registry->size(), 0u);
}

TEST(Property, ValueOfAnAbstractTypeIsNotCreatedOnGet) {
    expectNoCreation<KORVABaseClassProp>();
    expectNoCreation<KORVABaseParameterAssignmentProp>();
    expectNoCreation<KORVABaseROLAPCubeConfigurationProp>();
    expectNoCreation<KORVAGovernorProp>();
    expectNoCreation<KORVAOptionProp>();
    expectNoCreation<KORVALumaraOptionProp>();
    expectNoCreation<KORVARunOptionProp>();
    expectNoCreation<KORVADeploymentOptionProp>();
    expectNoCreation<KORVALumaraServiceSpecificationProp>();
    const Registry registry = makeRegistry();
    KORVABaseClassProp prop;
    KORVAFolder folder;
    prop.setValue(&folder);
    EXPECT_EQ(prop.getValue(registry.get()), &folder);
}

TEST(Property, EmptyArrayIsThere) {
    KORVAStringArrayProp prop;
    EXPECT_EQ(prop.getValue().size(), 0u);
    EXPECT_EQ(prop.getChildObject("value", false), &prop.getValue());
    EXPECT_EQ(prop.getChildObject("value", true), &prop.getValue());
}

TEST(Property, ArrayIsFilledThroughItself) {
    KORVABaseClassArrayProp prop;
    KORVAFolder folder;
    auto* const array = static_cast<KORVABaseClassArray*>(prop.getChildObject("value", false));
    EXPECT_EQ(array->setChildObject("folder", &folder, Object::eKORVAFolder, nullptr), 1u);
    EXPECT_EQ(prop.getValue().at(0), &folder);
}

TEST(Property, ArrayCannotBeSetByName) {
    KORVABaseClassArrayProp prop;
    KORVABaseClassArray array;
    EXPECT_ASSERTION(prop.setChildObject("value", &array, Object::eKORVABaseClassArray, nullptr),
                     "ZEL_ASSERT_NAMED(false, \"The 'value' element cannot be set through the "
                     "'KORVABaseClassArrayProp::setChildObject()' method.\");");
    KORVAMultilingualStringProp text;
    KORVAMultilingualStringArray texts;
    EXPECT_ASSERTION(
        text.setChildObject("value", &texts, Object::eKORVAMultilingualStringArray, nullptr),
        "ZEL_ASSERT_NAMED(false, \"The 'value' element cannot be set through the "
        "'KORVAMultilingualStringProp::setChildObject()' method.\");");
}

TEST(Property, EqualTextInDifferentBuffersIsEqual) {
    const std::string first("text");
    const std::string second("text");
    KORVAStringProp left;
    KORVAStringProp right;
    EXPECT_TRUE(left == right);
    left.setValue(first.c_str());
    EXPECT_FALSE(left == right);
    EXPECT_FALSE(right == left);
    right.setValue(second.c_str());
    EXPECT_TRUE(left == right);
    right.setValue("other");
    EXPECT_TRUE(left != right);
}

TEST(Property, SchemaInfoTakesPartInComparison) {
    KORVASchemaInfo info;
    KORVASchemaInfo same;
    KORVAStringProp left;
    KORVAStringProp right;
    left.setValue("x");
    right.setValue("x");
    left.setSchemaInfo(&info);
    EXPECT_FALSE(left == right);
    EXPECT_FALSE(right == left);
    right.setSchemaInfo(&same);
    EXPECT_TRUE(left == right);
}

TEST(Property, ResetPropertiesWithDifferentOldValuesDiffer) {
    KORVAIntProp left;
    KORVAIntProp right;
    left.setValue(1);
    left.resetValue();
    EXPECT_FALSE(left == right);
    right.setValue(1);
    EXPECT_FALSE(left == right);  // the flags differ
    right.resetValue();
    EXPECT_TRUE(left == right);
}

TEST(Property, PropertiesOfDifferentTypesDiffer) {
    KORVAPositiveIntegerProp positive;
    KORVANonNegativeIntegerProp nonNegative;
    positive.setValue(1);
    nonNegative.setValue(1);
    EXPECT_FALSE(positive == nonNegative);
    EXPECT_TRUE(nonNegative != positive);
}

TEST(Property, BinariesCompareByContent) {
    KORVABase64BinaryProp left;
    KORVABase64BinaryProp right;
    KORVAXSBase64Binary first("abc", 3);
    KORVAXSBase64Binary second("abc", 3);
    EXPECT_TRUE(left == right);
    left.setValue(&first);
    EXPECT_FALSE(left == right);
    right.setValue(&second);
    EXPECT_TRUE(left == right);
    second.append("d", 1);
    EXPECT_FALSE(left == right);
}

TEST(Property, ReferencePropertiesAreOrdinaryClasses) {
    const Registry registry = makeRegistry();
    KORVARefProp ref;
    EXPECT_FALSE(ref.isa(Object::eKORVABaseProp));
    EXPECT_EQ(ref.getChildType("properties"), Object::eKORVAPropEnumArray);
    EXPECT_EQ(ref.getChildType("refPropName"), Object::eKORVAPropEnum);
    EXPECT_EQ(ref.getChildType("schemaInfo"), Object::e_Unknown);
    EXPECT_EQ(ref.getProperties().size(), 0u);
    EXPECT_NE(ref.getRefPropName(registry.get()), nullptr);
    KORVAEventRefProp eventRef;
    EXPECT_FALSE(eventRef.isa(Object::eKORVABaseProp));
    EXPECT_EQ(eventRef.getChildType("refPropName"), Object::eKORVAEventRefPropEnum);
    KORVAEventRefPropEnum name;
    eventRef.setRefPropName(&name);
    EXPECT_EQ(eventRef.getRefPropName(), &name);
}

}  // namespace
