// The bridges with each allocation failing in turn.
#include "tests/bridges/Conversions.h"
#include "tests/support/ForEachFailingAllocation.h"
#include "tests/support/Registry.h"
#include "tests/support/SampleFaults.h"

#include <korva/KORVABase64BinaryProp.h>
#include <korva/KORVADOMObjectDeserializerFactory.h>
#include <korva/KORVADOMObjectSerializerFactory.h>
#include <korva/KORVAPermission.h>
#include <korva/KORVAPermissionArray.h>
#include <korva/KORVASAXObjectSerializerFactory.h>
#include <korva/KORVATARNObjectDeserializerFactory.h>
#include <korva/KORVATARNObjectSerializerFactory.h>
#include <korva/KORVAXSBase64Binary.h>
#include <korva/KORVA_CharStreamable.h>

#include <gtest/gtest.h>
#include <xercesc/sax2/DefaultHandler.hpp>

#include <string>

namespace {

using korva::test::forEachFailingAllocation;
using korva::test::makeRegistry;
using korva::test::Registry;

class BridgeAllocation : public testing::Test {
protected:
    BridgeAllocation() {
        for (KORVAPermission& permission : permissions)
            array.push_back(&permission);
        permissions[0].setName(longText.c_str());
        permissions[1].setName("short");
        id.initialize("an id that is longer than what a string holds in place", false);
        id.setIsContentId(true);
    }

    /// Of several pieces, but below what the reader tries to give unused memory back for.
    const std::string longText = std::string(3000, 'x');
    KORVAPermission permissions[3];
    KORVAPermissionArray array;
    KORVA_CharStreamable id;
};

TEST_F(BridgeAllocation, AFailureOnTheWayIntoADocumentLeavesNothingBehind) {
    const std::size_t count = forEachFailingAllocation([this] {
        const ZELIDOM_Document document = ZELIDOM_Document::create();
        korva::test::toElement(array, document);
    });
    EXPECT_GT(count, 10u);
}

TEST_F(BridgeAllocation, AFailureAtAReferenceLeavesNothingBehind) {
    permissions[2].setName(id.asCharStar());
    EXPECT_GT(forEachFailingAllocation([this] {
                  const ZELIDOM_Document document = ZELIDOM_Document::create();
                  korva::test::toElement(array, document);
              }),
              10u);
    EXPECT_GT(forEachFailingAllocation([this] {
                  xercesc::DefaultHandler handler;
                  korva::test::replay(array, handler);
              }),
              2u);
}

TEST_F(BridgeAllocation, AFailureOnTheWayOutOfADocumentLeavesNothingBehind) {
    const ZELIDOM_Document document = ZELIDOM_Document::create();
    const ZELIDOM_Element element = korva::test::toElement(array, document);
    EXPECT_GT(forEachFailingAllocation([&element] {
                  KORVADOMObjectDeserializer deserializer;
                  deserializer.deserialize(element);
              }),
              10u);
    EXPECT_GT(forEachFailingAllocation([&element] {
                  const Registry registry = makeRegistry();
                  KORVADOMObjectDeserializer().deserialize(element, registry.get());
              }),
              10u);
}

TEST_F(BridgeAllocation, AFailureOnTheWayThroughEventsLeavesNothingBehind) {
    EXPECT_GT(forEachFailingAllocation([this] {
                  const Registry registry = makeRegistry();
                  korva::test::readReplayed(array, registry.get());
              }),
              10u);
}

TEST_F(BridgeAllocation, AFailureOnTheWayIntoTheSecondModelLeavesNothingBehind) {
    permissions[2].setName(id.asCharStar());
    const korva::test::Maker maker;
    KORVASOAPFault& fault = korva::test::makeDocumentedFault(maker);
    korva::test::addUndocumentedDetails(maker, fault, korva::test::sampleDetails());
    KORVAXSBase64Binary bytes("bytes", 5);
    KORVABase64BinaryProp binary;
    binary.setValue(&bytes);
    for (const KORVASchemaTypeI* const object : {static_cast<const KORVASchemaTypeI*>(&array),
                                                 static_cast<const KORVASchemaTypeI*>(&fault),
                                                 static_cast<const KORVASchemaTypeI*>(&binary)})
        EXPECT_GT(forEachFailingAllocation([object] {
                      const auto registry = korva::test::makeTarnRegistry();
                      korva::test::toTarn(*object, registry);
                  }),
                  5u);
}

TEST_F(BridgeAllocation, AFailureOnTheWayOutOfTheSecondModelLeavesNothingBehind) {
    permissions[2].setName(id.asCharStar());
    const korva::test::Maker maker;
    KORVASOAPFault& fault = korva::test::makeDocumentedFault(maker);
    korva::test::addUndocumentedDetails(maker, fault, korva::test::sampleDetails());
    KORVAXSBase64Binary bytes("bytes", 5);
    KORVABase64BinaryProp binary;
    binary.setValue(&bytes);
    const auto source = korva::test::makeTarnRegistry();
    for (const TARNSchemaTypeI* const object :
         {korva::test::toTarn(array, source), korva::test::toTarn(fault, source),
          korva::test::toTarn(binary, source)})
        EXPECT_GT(forEachFailingAllocation([object] {
                      const Registry registry = makeRegistry();
                      korva::test::fromTarn(*object, *registry);
                  }),
                  5u);
}

template <class Factory>
void expectSafe() {
    auto& factory = Factory::getInstance();
    EXPECT_EQ(forEachFailingAllocation([&factory] { factory.destroy(factory.create()); }), 1u);
}

TEST_F(BridgeAllocation, AFailureInAFactoryLeavesNothingBehind) {
    expectSafe<KORVADOMObjectSerializerFactory>();
    expectSafe<KORVADOMObjectDeserializerFactory>();
    expectSafe<KORVASAXObjectSerializerFactory>();
    expectSafe<KORVATARNObjectSerializerFactory>();
    expectSafe<KORVATARNObjectDeserializerFactory>();
}

}  // namespace
