#include "bench/Corpus.h"

#include <brim/BRIMMemoryOutputStream.h>
#include <korva/KORVAAsynchOptionEnum.h>
#include <korva/KORVAAsynchOptionInt.h>
#include <korva/KORVAAsynchRun_Request.h>
#include <korva/KORVABaseClassArray.h>
#include <korva/KORVABaseClassArrayProp.h>
#include <korva/KORVABooleanProp.h>
#include <korva/KORVABoundRangeParmValueItem.h>
#include <korva/KORVAClassEnum.h>
#include <korva/KORVAClassEnumProp.h>
#include <korva/KORVAContentManagerServicePortType.h>
#include <korva/KORVAContentQuery_Reply.h>
#include <korva/KORVAContentQuery_Request.h>
#include <korva/KORVAConversationContext.h>
#include <korva/KORVACookieVar.h>
#include <korva/KORVACookieVarArray.h>
#include <korva/KORVADateTimeProp.h>
#include <korva/KORVAFolder.h>
#include <korva/KORVAGuid.h>
#include <korva/KORVAGuidProp.h>
#include <korva/KORVAHalyardHeader.h>
#include <korva/KORVAHdrSession.h>
#include <korva/KORVAMapGetMapPreview_Reply.h>
#include <korva/KORVAMapGetMapPreview_Request.h>
#include <korva/KORVAMultilingualToken.h>
#include <korva/KORVAMultilingualTokenArray.h>
#include <korva/KORVAMultilingualTokenProp.h>
#include <korva/KORVANonNegativeIntegerProp.h>
#include <korva/KORVAObjectRegistryI.h>
#include <korva/KORVAOptionArray.h>
#include <korva/KORVAParameterValue.h>
#include <korva/KORVAParameterValueArray.h>
#include <korva/KORVAParmValueItemArray.h>
#include <korva/KORVAReport.h>
#include <korva/KORVAReportServicePortType.h>
#include <korva/KORVARunOptionBoolean.h>
#include <korva/KORVARunOptionEnum.h>
#include <korva/KORVASOAPMessageISerializer.h>
#include <korva/KORVASearchPathSingleObject.h>
#include <korva/KORVASimpleParmValueItem.h>
#include <korva/KORVAStringProp.h>
#include <korva/KORVATokenProp.h>
#include <korva/KORVATracking.h>
#include <korva/KORVAUserPreferenceVar.h>
#include <korva/KORVAUserPreferenceVarArray.h>
#include <korva/KORVAWarden.h>
#include <korva/KORVAWardenPassport.h>
#include <korva/KORVAXSBase64Binary.h>

#include <cstring>
#include <random>

namespace {

/// Makes objects and texts that live as long as a registry.
class Maker {
public:
    Maker(KORVAObjectRegistryI* registry, unsigned seed) : m_registry(registry), m_random(seed) {}

    KORVAObjectRegistryI* registry() const { return m_registry; }

    template <class X>
    X* make() {
        return m_registry->make<X>();
    }

    const char* text(const std::string& s) { return m_registry->keep(s); }

    /// A word of letters; not std::uniform_int_distribution, whose results differ by library.
    std::string word(std::size_t length) {
        std::string s;
        for (std::size_t i = 0; i < length; ++i)
            s += static_cast<char>('a' + next() % 26);
        return s;
    }

    std::uint32_t next() { return static_cast<std::uint32_t>(m_random()); }

private:
    KORVAObjectRegistryI* m_registry;
    std::mt19937 m_random;
};

KORVASimpleParmValueItem* makeItem(Maker& maker) {
    auto* const item = maker.make<KORVASimpleParmValueItem>();
    item->setUse(maker.text(maker.word(6)));
    item->setDisplay(maker.text(maker.word(12) + " & " + maker.word(8)));
    item->setInclusive(true);
    return item;
}

void fillHeader(Maker& maker, KORVAHalyardHeader& header) {
    KORVAObjectRegistryI* const registry = maker.registry();
    KORVAWardenPassport* const passport = header.getWarden(registry)->getWardenPassport(registry);
    passport->setId(maker.text("MTsxMDE6" + maker.word(24)));
    passport->setIsAnonymous(false);
    passport->setGeneration(3);
    auto* const cookie = maker.make<KORVACookieVar>();
    cookie->setName(maker.text(maker.word(8)));
    cookie->setValue(maker.text(maker.word(20)));
    header.getHdrSession(registry)->getCookieVars().push_back(cookie);
    auto* const preference = maker.make<KORVAUserPreferenceVar>();
    preference->setName(maker.text(maker.word(10)));
    preference->setValue(maker.text(maker.word(5)));
    header.getUserPreferenceVars().push_back(preference);
    KORVATracking* const tracking = header.getTracking(registry);
    tracking->setHopCount(2);
    tracking->setRequestContext(maker.text(maker.word(32)));
    tracking->setSessionContext(maker.text(maker.word(32)));
    tracking->getConversationContext(registry)->setNodeID(maker.text(maker.word(16)));
    tracking->getConversationContext(registry)->setProcessID(4711);
}

Call makeRunCall(ZELSmartPointer<KORVAAsynchRun_Request>& request) {
    return KORVAReportServicePortType::getInstance().createPortTypeBinding(request.get());
}

/// A report or folder with what a listing asks for.
KORVABaseClass* makeContentObject(Maker& maker) {
    KORVAObjectRegistryI* const registry = maker.registry();
    KORVAUiClass* object = nullptr;
    int classValue = 0;
    if (maker.next() % 3 == 0) {
        object = maker.make<KORVAFolder>();
        classValue = KORVAClassEnum::eKORVAFolder;
    } else {
        object = maker.make<KORVAReport>();
        classValue = KORVAClassEnum::eKORVAReport;
    }
    object->getObjectClass(registry)->getValue(registry)->setValue(
        static_cast<KORVAClassEnum::Enum>(classValue));
    object->getDefaultName(registry)->setValue(maker.text(maker.word(14)));
    object->getSearchPath(registry)->setValue(maker.text(
        "/content/folder[@name='" + maker.word(9) + "']/report[@name='" + maker.word(12) + "']"));
    object->getStoreID(registry)->getValue(registry)->setValue(maker.text('i' + maker.word(32)));
    object->getCreationTime(registry)->setValue("2026-03-09T11:20:31.104Z");
    object->getModificationTime(registry)->setValue("2026-05-17T08:02:55.480Z");
    object->getHasChildren(registry)->setValue(maker.next() % 2 == 0);
    object->getHidden(registry)->setValue(false);
    object->getDisplaySequence(registry)->setValue(static_cast<int>(maker.next() % 1000));
    auto* const name = maker.make<KORVAMultilingualToken>();
    name->setLocale("en");
    name->setValue(maker.text(maker.word(14)));
    object->getName(registry)->getValue().push_back(name);
    auto* const owner = maker.make<KORVAFolder>();
    owner->getSearchPath(registry)->setValue(
        maker.text("/directory/account[@id='" + maker.word(10) + "']"));
    object->getOwner(registry)->getValue().push_back(owner);
    return object;
}

/// About what one object of makeContentObject takes on the wire.
constexpr std::size_t contentObjectBytes = 2150;

std::string envelope(KORVAPortTypeBinding& call, KORVAMessageI& message) {
    BRIMMemoryOutputStream bytes;
    KORVASOAPMessageISerializer().serialize(call, message, bytes);
    return {bytes.str(), bytes.pcount()};
}

}  // namespace

Call makeRunRequest() {
    ZELSmartPointer<KORVAAsynchRun_Request> request(new KORVAAsynchRun_Request);
    Maker maker(request->getObjectRegistry(), 1);
    KORVAObjectRegistryI* const registry = maker.registry();
    fillHeader(maker, *request->getHalyardHeader(registry));
    request->getObjectPath(registry)->setValue(
        "/content/folder[@name='Sales']/report[@name='Quarter']");
    auto* const value = maker.make<KORVAParameterValue>();
    value->setName(maker.text(maker.word(10)));
    value->getValue().push_back(makeItem(maker));
    request->getParameterValues(registry)->push_back(value);
    for (int i = 0; i < 2; ++i) {
        auto* const option = maker.make<KORVARunOptionBoolean>();
        option->getName(registry)->setValue(KORVARunOptionEnum::eKORVAPrompt);
        option->setValue(i % 2 == 0);
        request->getOptions(registry)->push_back(option);
    }
    return makeRunCall(request);
}

Call makeContentReply(std::size_t bytes) {
    ZELSmartPointer<KORVAContentQuery_Request> request(new KORVAContentQuery_Request);
    const Call call =
        KORVAContentManagerServicePortType::getInstance().createPortTypeBinding(request.get());
    auto& reply = static_cast<KORVAContentQuery_Reply&>(call->getOutputMessage());
    Maker maker(reply.getObjectRegistry(), 2);
    for (std::size_t i = 0; i < bytes / contentObjectBytes; ++i)
        reply.getResult(maker.registry())->push_back(makeContentObject(maker));
    return call;
}

Call makeTextRequest(std::size_t bytes) {
    ZELSmartPointer<KORVAAsynchRun_Request> request(new KORVAAsynchRun_Request);
    Maker maker(request->getObjectRegistry(), 3);
    std::string text;
    text.reserve(bytes + 64);
    while (text.size() < bytes) {
        text += maker.word(49);
        text += maker.next() % 4 == 0 ? "\xC3\xA4" : "&";
    }
    auto* const item = maker.make<KORVASimpleParmValueItem>();
    item->setUse(maker.text(text));
    auto* const value = maker.make<KORVAParameterValue>();
    value->getValue().push_back(item);
    request->getParameterValues(maker.registry())->push_back(value);
    return makeRunCall(request);
}

Call makeBinaryReply(std::size_t bytes) {
    ZELSmartPointer<KORVAMapGetMapPreview_Request> request(new KORVAMapGetMapPreview_Request);
    const Call call =
        KORVAReportServicePortType::getInstance().createPortTypeBinding(request.get());
    auto& reply = static_cast<KORVAMapGetMapPreview_Reply&>(call->getOutputMessage());
    Maker maker(reply.getObjectRegistry(), 4);
    std::string data(bytes, '\0');
    for (char& c : data)
        c = static_cast<char>(maker.next());
    auto* const image = maker.registry()->make<KORVAXSBase64Binary>(data.data(), data.size());
    reply.setResult(image);
    return call;
}

std::string inputEnvelope(KORVAPortTypeBinding& call) {
    return envelope(call, call.getInputMessage());
}

std::string outputEnvelope(KORVAPortTypeBinding& call) {
    return envelope(call, call.getOutputMessage());
}
