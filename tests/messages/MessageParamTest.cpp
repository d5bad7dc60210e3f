#include "tests/support/ExpectThrow.h"

#include <korva/KORVAFolder.h>
#include <korva/KORVAMessageParam.h>

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

namespace {

TEST(MessageParam, CopiesItsName) {
    std::string name = "objectPath";
    const KORVAMessageParam param(name.c_str(), KORVASchemaTypeI::eString);
    name[0] = 'x';
    EXPECT_STREQ(param.getName(), "objectPath");
    EXPECT_EQ(param.getParamType(), KORVASchemaTypeI::eString);
    EXPECT_EQ(param.getParamValue(), nullptr);
}

TEST(MessageParam, HasNoNameWhenItIsNullOrEmpty) {
    EXPECT_EQ(KORVAMessageParam(nullptr, KORVASchemaTypeI::eInt).getName(), nullptr);
    EXPECT_EQ(KORVAMessageParam("", KORVASchemaTypeI::eInt).getName(), nullptr);
}

TEST(MessageParam, TakesObjectsAndPlainValues) {
    KORVAFolder folder;
    const KORVAMessageParam object("object", KORVASchemaTypeI::eKORVAFolder, &folder);
    EXPECT_EQ(object.getParamValue(), static_cast<KORVASchemaTypeI*>(&folder));
    int number = 3;
    const KORVAMessageParam plain("count", KORVASchemaTypeI::eInt, &number);
    EXPECT_EQ(plain.getParamValue(), &number);
    const KORVAMessageParam none("count", KORVASchemaTypeI::eInt, nullptr);
    EXPECT_EQ(none.getParamValue(), nullptr);
}

TEST(MessageParam, TakesItsValueOnce) {
    int number = 3;
    KORVAMessageParam param("count", KORVASchemaTypeI::eInt);
    param.setParamValue(nullptr);
    param.setParamValue(&number);
    EXPECT_EQ(param.getParamValue(), &number);
    EXPECT_ASSERTION(param.setParamValue(&number), "ZEL_ASSERT(!m_paramValue);");
    EXPECT_ASSERTION(param.setParamValue(nullptr), "ZEL_ASSERT(!m_paramValue);");
    EXPECT_EQ(param.getParamValue(), &number);
    KORVAMessageParam made("count", KORVASchemaTypeI::eInt, &number);
    EXPECT_ASSERTION(made.setParamValue(&number), "ZEL_ASSERT(!m_paramValue);");
}

TEST(MessageParam, HasAVirtualDestructorThatLeavesTheValue) {
    static_assert(std::has_virtual_destructor_v<KORVAMessageParam>);
    KORVAFolder folder;
    delete new KORVAMessageParam("object", KORVASchemaTypeI::eKORVAFolder, &folder);
    EXPECT_EQ(folder.getObjectType(), KORVASchemaTypeI::eKORVAFolder);
}

}  // namespace
