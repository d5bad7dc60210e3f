// Each of the short forms that allocates, with each of its allocations failing in turn.

#include "tests/support/ForEachFailingAllocation.h"
#include "tests/support/Registry.h"

#include <korva/KORVAAsynchRun_Request.h>
#include <korva/KORVAException.h>
#include <korva/KORVAFolder.h>
#include <korva/KORVAGuid.h>
#include <korva/KORVAGuidProp.h>
#include <korva/KORVAParameterValue.h>
#include <korva/KORVAParameterValueArray.h>
#include <korva/KORVAReport.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVAStringProp.h>
#include <korva/KORVA_CharStreamable.h>
#include <korva/KORVA_CheckingRegistry.h>
#include <korva/KORVA_Comfort.h>

#include <gtest/gtest.h>

#include <string>

namespace {

using korva::test::Absorbed;
using korva::test::forEachFailingAllocation;
using korva::test::makeRegistry;
using korva::test::Registry;
using Object = KORVASchemaTypeI;

// No text fits into a std::string without an allocation.
constexpr const char* longText = "a text that is longer than what any string holds by itself";

/// Expects the exception with this number. Its back trace may lack lines for which there was no
/// memory, so that some failures are absorbed.
template <class Action>
void expectNumber(unsigned id, Action action) {
    try {
        action();
        ADD_FAILURE() << "nothing was thrown";
    } catch (const KORVAException& error) {
        EXPECT_EQ(error.getMessages()[0].getId(), id);
    }
}

TEST(ComfortAllocation, CastsThatFailTellSoOrThatThereIsNoMemory) {
    const KORVAFolder folder;
    const Object& object = folder;
    EXPECT_GT(
        forEachFailingAllocation(
            [&] { expectNumber(0xEA4F0036U, [&] { korva::object_cast<KORVAReport>(object); }); },
            Absorbed::Harmless),
        0u);
}

TEST(ComfortAllocation, TextsAreCopiedOrNot) {
    KORVA_CharStreamable streamed;
    streamed.initialize(longText, false);
    for (const char* const source : {longText, streamed.asCharStar()}) {
        KORVAStringProp text;
        text.setValue(source);
        EXPECT_GT(forEachFailingAllocation([&] { EXPECT_EQ(korva::textOf(&text), longText); }), 0u);
    }
}

TEST(ComfortAllocation, TextsAreKeptOrNot) {
    EXPECT_GT(forEachFailingAllocation([] {
                  const Registry registry = makeRegistry();
                  KORVAGuid guid;
                  guid.setValue("before");
                  try {
                      korva::setText(guid, longText, *registry);
                  } catch (const ZELOutOfMemoryError&) {
                      EXPECT_STREQ(guid.getValue(), "before");
                      throw;
                  }
                  EXPECT_STREQ(guid.getValue(), longText);
              }),
              0u);
}

TEST(ComfortAllocation, ArraysGrowWholeOrNotAtAll) {
    EXPECT_GT(forEachFailingAllocation([] {
                  const Registry registry = makeRegistry();
                  KORVAParameterValueArray objects;
                  KORVAStringArray texts;
                  try {
                      objects.emplace_back(*registry);
                      texts.emplace_back(longText, *registry);
                  } catch (const ZELOutOfMemoryError&) {
                      EXPECT_TRUE(texts.empty());
                      for (const KORVAParameterValue* const object : objects)
                          EXPECT_NE(object, nullptr);
                      throw;
                  }
              }),
              0u);
}

TEST(ComfortAllocation, ChildrenAreAllThereOrNone) {
    KORVAReport report;
    KORVAStringProp path;
    path.setValue(longText);
    report.setSearchPath(&path);
    EXPECT_GT(forEachFailingAllocation([&] {
                  for (const KORVA_Child& child : korva::children(report))
                      EXPECT_EQ(child.describe(), child.isNull() ? "null" : "KORVAStringProp");
                  EXPECT_EQ(korva::children(path)[1].asText(), longText);
                  EXPECT_EQ(korva::children(path)[1].describe(), longText);
              }),
              0u);
    EXPECT_GT(forEachFailingAllocation(
                  [&] { expectNumber(0xEA4F0032U, [&] { korva::children(path)[1].asInt(); }); },
                  Absorbed::Harmless),
              0u);
}

TEST(ComfortAllocation, PathsAreReadAndFollowed) {
    KORVAReport report;
    KORVAStringProp value;
    value.setValue(longText);
    report.setSearchPath(&value);
    EXPECT_GT(forEachFailingAllocation([&] {
                  const KORVA_Path path("searchPath/value");
                  EXPECT_EQ(path.get(report).asText(), longText);
                  EXPECT_EQ(korva::findAll(report, "*/value").front().path, path);
                  EXPECT_TRUE(korva::find(report, path).has_value());
              }),
              0u);
    EXPECT_GT(forEachFailingAllocation(
                  [&] {
                      expectNumber(0xEA4F0030U, [&] { korva::get(report, "searchPath/x"); });
                      expectNumber(0xEA4F0031U, [&] { korva::get(report, "searchPath//value"); });
                  },
                  Absorbed::Harmless),
              0u);
}

TEST(ComfortAllocation, PathsSetAllOrNothing) {
    EXPECT_GT(forEachFailingAllocation([] {
                  const Registry registry = makeRegistry();
                  KORVAReport report;
                  try {
                      korva::set(report, "storeID/value", longText, *registry);
                  } catch (const ZELOutOfMemoryError&) {
                      EXPECT_EQ(report.getStoreID(), nullptr);
                      throw;
                  }
                  EXPECT_EQ(korva::get(report, "storeID/value").asText(), longText);
              }),
              0u);
    const ZELSmartPointer<KORVAAsynchRun_Request> run = new KORVAAsynchRun_Request;
    EXPECT_GT(forEachFailingAllocation([&run] {
                  const Registry registry = makeRegistry();
                  run->setParameterValues(nullptr);
                  try {
                      korva::set(*run, "parameterValues/0/name", longText, *registry);
                  } catch (const ZELOutOfMemoryError&) {
                      EXPECT_EQ(run->getParameterValues(), nullptr);
                      throw;
                  }
                  EXPECT_EQ(korva::children(*run)[1].describe(), "KORVAParameterValueArray[1]");
              }),
              0u);
}

TEST(ComfortAllocation, ACheckingRegistryFreesWhatItTookAndNothingElse) {
    EXPECT_GT(forEachFailingAllocation(
                  [] {
                      const ZELSmartPointer<KORVA_CheckingRegistry> registry =
                          KORVA_CheckingRegistry::create();
                      KORVAReport report;
                      korva::set(report, "storeID/value", longText, *registry);
                      registry->check(*report.getStoreID());
                      Object* const swept = report.getStoreID();
                      registry->clean();
                      expectNumber(0xEA4F0034U, [&] { swept->getObjectType(); });
                  },
                  Absorbed::Harmless),
              0u);
}

}  // namespace
