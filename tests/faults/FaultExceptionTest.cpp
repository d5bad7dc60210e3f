// The exception that carries a fault.
#include "tests/support/AllocationFailure.h"
#include "tests/support/ExpectThrow.h"
#include "tests/support/ForEachFailingAllocation.h"
#include "tests/support/SampleFaults.h"

#include <korva/KORVAObjectRegistry.h>
#include <korva/KORVASOAPFaultException.h>
#include <korva/KORVA_CharStreamable.h>
#include <zel/ZELException.h>
#include <zel/ZELThrow.h>

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>

namespace {

using korva::test::addDetails;
using korva::test::forEachFailingAllocation;
using korva::test::liveAllocations;
using korva::test::makeDocumentedFault;
using korva::test::makeFault;
using korva::test::makeHeader;
using korva::test::Maker;

using Registry = ZELSmartPointer<KORVAObjectRegistry>;

/// A fault that nothing but the returned exception keeps alive.
KORVASOAPFaultException makeLoneException() {
    const Maker maker;
    return {&makeHeader(maker), makeDocumentedFault(maker), maker.registry()};
}

TEST(FaultException, CarriesHeaderFaultAndRegistry) {
    const Maker maker;
    KORVASOAPFault& fault = makeDocumentedFault(maker);
    KORVAHalyardHeader& header = makeHeader(maker);
    const KORVASOAPFaultException exception(&header, fault, maker.registry());
    EXPECT_EQ(exception.getHalyardHeader(), &header);
    EXPECT_EQ(&exception.getSOAPFault(), &fault);
    EXPECT_EQ(exception.getObjectRegistry(), maker.registry());
    EXPECT_EQ(exception.getSeverity(), eZELError);
    EXPECT_STREQ(exception.getErrorCodeString(), "0");
    EXPECT_STREQ(exception.getThrowableName(), "KORVASOAPFaultException");
}

TEST(FaultException, MayLackAHeaderAndARegistry) {
    KORVASOAPFault fault;
    const KORVASOAPFaultException exception(nullptr, fault, nullptr);
    const KORVASOAPFaultException copy = exception;
    EXPECT_EQ(copy.getHalyardHeader(), nullptr);
    EXPECT_EQ(copy.getObjectRegistry(), nullptr);
}

TEST(FaultException, IsAnExceptionOfTheFamily) {
    EXPECT_TRUE((std::is_base_of_v<ZELException, KORVASOAPFaultException>));
    EXPECT_FALSE((std::is_base_of_v<std::exception, KORVASOAPFaultException>));
    EXPECT_TRUE(std::is_nothrow_copy_constructible_v<KORVASOAPFaultException>);
    EXPECT_TRUE(std::is_nothrow_copy_assignable_v<KORVASOAPFaultException>);
}

TEST(FaultException, HoldsOneReferenceToTheRegistryForEachCopy) {
    const Registry registry = KORVAObjectRegistry::create();
    const Registry other = KORVAObjectRegistry::create();
    KORVASOAPFault fault;
    {
        const KORVASOAPFaultException exception(nullptr, fault, registry.get());
        EXPECT_EQ(registry->getReferenceCount(), 2u);
        {
            const KORVASOAPFaultException copy = exception;
            EXPECT_EQ(registry->getReferenceCount(), 3u);
        }
        EXPECT_EQ(registry->getReferenceCount(), 2u);
        KORVASOAPFaultException assigned(nullptr, fault, other.get());
        assigned = exception;
        EXPECT_EQ(other->getReferenceCount(), 1u);
        EXPECT_EQ(registry->getReferenceCount(), 3u);
        KORVASOAPFaultException& self = assigned;
        assigned = self;
        EXPECT_EQ(registry->getReferenceCount(), 3u);
        const std::unique_ptr<KORVASOAPFaultException> clone(exception.clone());
        EXPECT_EQ(registry->getReferenceCount(), 4u);
    }
    EXPECT_EQ(registry->getReferenceCount(), 1u);
}

TEST(FaultException, KeepsTheFaultReadableAfterEverythingElseHasGone) {
    std::unique_ptr<KORVASOAPFaultException> kept;
    {
        try {
            ZEL_THROW(makeLoneException(), "call()");
        } catch (const KORVASOAPFaultException& caught) {
            kept.reset(caught.clone());
        }
    }
    const Maker maker;
    EXPECT_TRUE(kept->getSOAPFault() == makeDocumentedFault(maker));
    EXPECT_TRUE(*kept->getHalyardHeader() == makeHeader(maker));
    std::string messages;
    kept->getSOAPFaultMessages(messages);
    EXPECT_EQ(messages,
              "The data source <sales> & its replica can't be reached. Connection refused.");
}

TEST(FaultException, AssignmentTakesEverything) {
    const Maker maker;
    KORVASOAPFault first;
    KORVASOAPFault second;
    KORVAHalyardHeader& header = makeHeader(maker);
    KORVASOAPFaultException target(nullptr, first, nullptr);
    target.addBackTrace(ZELFileLocation("old.cpp", 1), nullptr, nullptr);
    KORVASOAPFaultException source(&header, second, maker.registry());
    source.addBackTrace(ZELFileLocation("new.cpp", 2), nullptr, nullptr);
    target = source;
    EXPECT_EQ(&target.getSOAPFault(), &second);
    EXPECT_EQ(target.getHalyardHeader(), &header);
    ASSERT_EQ(target.getBackTrace().size(), 1u);
    EXPECT_STREQ(target.getBackTrace()[0], "new.cpp(2)");
}

TEST(FaultException, IsThrownAsWhatItIsWithItsPlace) {
    const auto raise = [] { ZEL_THROW(makeLoneException(), "call()"); };
    EXPECT_TRUE(korva::test::raises<KORVASOAPFaultException>(
        "a fault", raise, [](const KORVASOAPFaultException& caught) {
            EXPECT_EQ(caught.getBackTrace().size(), 1u);
            return korva::test::isThrownBy(caught, "call()");
        }));
    EXPECT_THROW(raise(), ZELException);
    EXPECT_THROW(raise(), ZELThrowable);
}

TEST(FaultException, ACloneIsAFaultException) {
    const KORVASOAPFaultException exception = makeLoneException();
    const ZELThrowable& base = exception;
    const std::unique_ptr<ZELThrowable> clone(base.clone());
    EXPECT_STREQ(clone->getThrowableName(), "KORVASOAPFaultException");
    EXPECT_NE(dynamic_cast<KORVASOAPFaultException*>(clone.get()), nullptr);
    EXPECT_EQ(&static_cast<const KORVASOAPFaultException&>(*clone).getSOAPFault(),
              &exception.getSOAPFault());
}

// ----- the text -----

TEST(FaultException, ToStringHasTheFormThatToolsCompare) {
    const Maker maker;
    KORVASOAPFault& fault = makeFault(maker);
    addDetails(maker, fault, {{"fatal", "1", {{"No <such> & report.", 0}}}});
    KORVASOAPFaultException exception(nullptr, fault, nullptr);
    EXPECT_STREQ(exception.toString(),
                 "<Exception Name=\"KORVASOAPFaultException\" Error=\"0\" Severity=\"error\">"
                 "<Messages=\"No <such> & report.\"/><Traceinfo></TraceInfo></Exception>");
    exception.addBackTrace(ZELFileLocation("a.cpp", 1), "f()", "ZEL_THROW");
    exception.addBackTrace(ZELFileLocation("b.cpp", 22), nullptr, "ZEL_RETHROW");
    EXPECT_STREQ(exception.toString(),
                 "<Exception Name=\"KORVASOAPFaultException\" Error=\"0\" Severity=\"error\">"
                 "<Messages=\"No <such> & report.\"/><Traceinfo>"
                 "<Trace Text=\"a.cpp(1) f() ZEL_THROW /><Trace Text=\"b.cpp(22) ZEL_RETHROW />"
                 "</TraceInfo></Exception>");
}

TEST(FaultException, ToStringStaysOnOneLineWhateverTheFaultSays) {
    const Maker maker;
    KORVASOAPFault& fault = makeFault(maker);
    addDetails(maker, fault, {{"fatal", "1", {{"a\nb", 0}}}});
    EXPECT_STREQ(KORVASOAPFaultException(nullptr, fault, nullptr).toString(),
                 "<Exception Name=\"KORVASOAPFaultException\" Error=\"0\" Severity=\"error\">"
                 "<Messages=\"a\\nb\"/><Traceinfo></TraceInfo></Exception>");
}

TEST(FaultException, ToStringOfAFaultWithoutDetailsHasNoMessages) {
    KORVASOAPFault fault;
    EXPECT_STREQ(KORVASOAPFaultException(nullptr, fault, nullptr).toString(),
                 "<Exception Name=\"KORVASOAPFaultException\" Error=\"0\" Severity=\"error\">"
                 "<Messages=\"\"/><Traceinfo></TraceInfo></Exception>");
}

TEST(FaultException, ToStringGivesAFreshPointerAndFreesTheFormerOne) {
    const KORVASOAPFaultException exception = makeLoneException();
    const char* const first = exception.toString();
    const std::size_t live = liveAllocations();
    const char* const second = exception.toString();
    EXPECT_NE(second, first);
    EXPECT_EQ(liveAllocations(), live);
}

TEST(FaultException, ACopyDoesNotShareTheTextOfToString) {
    auto exception = std::make_unique<KORVASOAPFaultException>(makeLoneException());
    const char* const text = exception->toString();
    const std::string expected = text;
    const std::size_t live = liveAllocations();
    {
        const KORVASOAPFaultException copy = *exception;
        const KORVASOAPFaultException assigned = [&] {
            KORVASOAPFaultException target = makeLoneException();
            target = *exception;
            return target;
        }();
        EXPECT_NE(copy.toString(), text);
        EXPECT_NE(assigned.toString(), text);
        EXPECT_EQ(copy.toString(), expected);
    }
    EXPECT_EQ(liveAllocations(), live);
    const KORVASOAPFaultException copy = *exception;
    const char* const own = copy.toString();
    exception.reset();
    EXPECT_EQ(own, expected);
}

TEST(FaultException, ToStringWithoutMemoryIsTheName) {
    const KORVASOAPFaultException exception = makeLoneException();
    const std::string whole = exception.toString();
    std::size_t failures = 0;
    for (std::size_t n = 1;; ++n) {
        const korva::test::AllocationFailure failure(n);
        const char* const text = exception.toString();
        if (!failure.happened()) {
            EXPECT_EQ(text, whole);
            break;
        }
        ++failures;
        EXPECT_TRUE(text == std::string_view("KORVASOAPFaultException") ||
                    text == std::string_view("(text lost: out of memory)") || text == whole)
            << text;
    }
    EXPECT_GE(failures, 3u);
}

/// Cannot be read.
class BrokenStreamable : public korva::test::TextStreamable {
public:
    BrokenStreamable() : TextStreamable("") {}
    BRIMOutputStream& operator>>(BRIMOutputStream&) const override { ZEL_THROW(ZELException("x")); }
};

TEST(FaultException, ToStringOfAStreamThatFailsIsTheName) {
    const Maker maker;
    const BrokenStreamable source;
    KORVA_CharStreamable text;
    text.initialize(source, false);
    KORVASOAPFault& fault = makeFault(maker);
    addDetails(maker, fault, {{nullptr, nullptr, {{text.asCharStar(), 0}}}});
    const KORVASOAPFaultException exception(nullptr, fault, nullptr);
    EXPECT_STREQ(exception.toString(), "KORVASOAPFaultException");
    std::string messages;
    EXPECT_THROW(exception.getSOAPFaultMessages(messages), ZELException);
}

// ----- failures -----

TEST(FaultException, CopiesAndThrowsWithoutMemory) {
    const KORVASOAPFaultException exception = makeLoneException();
    const korva::test::NoMemory none;
    KORVASOAPFaultException copy = exception;
    copy.addBackTrace(ZEL_LOCATION, nullptr, nullptr);
    EXPECT_EQ(&copy.getSOAPFault(), &exception.getSOAPFault());
}

TEST(FaultException, ACloneForWhichThereIsNoMemoryIsTold) {
    const KORVASOAPFaultException exception = makeLoneException();
    EXPECT_EQ(forEachFailingAllocation([&] { delete exception.clone(); }), 1u);
}

/// A registry whose end fails.
class FailingRegistry : public KORVAObjectRegistryI {
public:
    void registerPointer(bool*, KORVADeleteMode) override {}
    void registerPointer(char*, KORVADeleteMode) override {}
    void registerPointer(float*, KORVADeleteMode) override {}
    void registerPointer(int*, KORVADeleteMode) override {}
    void registerPointer(KORVA_AttachmentContainerI*) override {}
    void registerPointer(KORVA_CharStreamable*) override {}
    void registerPointer(KORVAXSBase64Binary*) override {}
    void registerPointer(ZELSmartPointer<KORVA_RefCount_ConstChar>*) override {}
    void registerPointer(KORVA_String*) override {}
    void registerPointer(std::string*) override {}
    void registerPointer(BRIMOutputStream*) override {}
    void registerPointer(I18NString*) override {}
    void registerPointer(KORVASchemaTypeI*) override {}
    void clean() override {}
    void cleanup() override {
        ++ends;
        throw std::runtime_error("the registry fails");
    }
    int ends = 0;
};

TEST(FaultException, DropsWhatTheEndOfTheRegistryThrows) {
    FailingRegistry registry;
    KORVASOAPFault fault;
    { const KORVASOAPFaultException exception(nullptr, fault, &registry); }
    EXPECT_EQ(registry.ends, 1);
    KORVASOAPFaultException other(nullptr, fault, nullptr);
    {
        KORVASOAPFaultException exception(nullptr, fault, &registry);
        exception = other;
    }
    EXPECT_EQ(registry.ends, 2);
}

}  // namespace
