#include "tests/support/ExpectThrow.h"

#include <korva/KORVABaseClass.h>
#include <korva/KORVABaseClassArray.h>
#include <korva/KORVAFolder.h>
#include <korva/KORVAGuid.h>
#include <korva/KORVAReport.h>
#include <korva/KORVASOAPFault.h>
#include <korva/KORVASchedule.h>
#include <korva/KORVASeverityEnum.h>
#include <korva/KORVAUiClass.h>
#include <korva/KORVAUnknownSchemaType.h>
#include <korva/KORVA_ArrayObject.h>
#include <korva/KORVA_Cast.h>

#include <gtest/gtest.h>

#include <type_traits>

namespace {

using korva::object_cast;
using Object = KORVASchemaTypeI;

TEST(ObjectCast, GivesTheObjectAsItsClassAndAsEachOfItsBases) {
    KORVAReport report;
    Object* const object = &report;
    EXPECT_EQ(object_cast<KORVAReport>(object), &report);
    EXPECT_EQ(object_cast<KORVAUiClass>(object), &report);
    EXPECT_EQ(object_cast<KORVABaseClass>(object), &report);
}

TEST(ObjectCast, GivesNullForAnotherClassAndForNull) {
    KORVAFolder folder;
    Object* const object = &folder;
    EXPECT_EQ(object_cast<KORVAReport>(object), nullptr);
    EXPECT_EQ(object_cast<KORVAGuid>(object), nullptr);
    EXPECT_EQ(object_cast<KORVAReport>(static_cast<Object*>(nullptr)), nullptr);
}

TEST(ObjectCast, KnowsEachFamilyAndTheHandWrittenClasses) {
    KORVAGuid guid;
    KORVASeverityEnum severity;
    KORVABaseClassArray array;
    KORVASOAPFault fault;
    KORVAUnknownSchemaType unknown;
    Object* const objects[] = {&guid, &severity, &array, &fault, &unknown};
    EXPECT_EQ(object_cast<KORVAGuid>(objects[0]), &guid);
    EXPECT_EQ(object_cast<KORVASeverityEnum>(objects[1]), &severity);
    EXPECT_EQ(object_cast<KORVABaseClassArray>(objects[2]), &array);
    EXPECT_EQ(object_cast<KORVASOAPFault>(objects[3]), &fault);
    EXPECT_EQ(object_cast<KORVAUnknownSchemaType>(objects[4]), &unknown);
    EXPECT_EQ(object_cast<KORVASOAPFault>(objects[4]), nullptr);
    EXPECT_EQ(object_cast<KORVA_ArrayObject>(objects[2]), &array);
    EXPECT_EQ(object_cast<KORVA_ArrayObject>(objects[0]), nullptr);
}

TEST(ObjectCast, KeepsConst) {
    const KORVAReport report;
    const Object& object = report;
    EXPECT_EQ(object_cast<KORVAReport>(&object), &report);
    EXPECT_TRUE((std::is_same_v<decltype(object_cast<KORVAReport>(&object)), const KORVAReport*>));
    EXPECT_EQ(&object_cast<KORVAReport>(object), &report);
    EXPECT_TRUE((std::is_same_v<decltype(object_cast<KORVAReport>(object)), const KORVAReport&>));
}

/// Inherits the identity of a folder, and so must not be told by it.
class OwnFolder : public KORVAFolder {};

TEST(ObjectCast, TellsAClassOfOnesOwnFromTheClassThatItIsDerivedFrom) {
    KORVAFolder folder;
    OwnFolder own;
    Object* const foreign = &folder;
    Object* const object = &own;
    EXPECT_EQ(object_cast<OwnFolder>(foreign), nullptr);
    EXPECT_EQ(object_cast<OwnFolder>(object), &own);
    EXPECT_EQ(object_cast<KORVAFolder>(object), &own);
}

TEST(ObjectCast, OfAReferenceTellsBothClasses) {
    KORVAFolder folder;
    Object& object = folder;
    EXPECT_EQ(&object_cast<KORVAFolder>(object), &folder);
    EXPECT_NUMBERED(object_cast<KORVAReport>(object), 0xEA4F0036U, "KORVA_Objects::refuseCast",
                    "KORVAReport", "KORVAFolder");
}

}  // namespace
