// Replays an object to a SAX2 handler, as if a parser had read it.
#include <korva/KORVABooleanProp.h>
#include <korva/KORVANmtokenProp.h>
#include <korva/KORVAObjectRegistry.h>
#include <korva/KORVAPositiveIntegerProp.h>
#include <korva/KORVASAXObjectSerializer.h>
#include <korva/KORVASchedule.h>
#include <zel/I18NString.h>
#include <zel/ZELSmartPointer.h>

#include <xercesc/sax2/DefaultHandler.hpp>

#include <iostream>
#include <string>

namespace {

/// Prints each text behind the path of its element.
class PathPrinter : public xercesc::DefaultHandler {
public:
    void startElement(const XMLCh*, const XMLCh* localName, const XMLCh*,
                      const xercesc::Attributes&) override {
        m_path += '/';
        m_path += I18NString(localName, std::char_traits<XMLCh>::length(localName)).utf8();
    }

    void characters(const XMLCh* text, XMLSize_t length) override {
        std::cout << m_path << " = " << I18NString(text, length).utf8() << '\n';
    }

    void endElement(const XMLCh*, const XMLCh*, const XMLCh*) override {
        m_path.erase(m_path.rfind('/'));
    }

private:
    std::string m_path;
};

}  // namespace

int main() {
    const ZELSmartPointer<KORVAObjectRegistry> registry = KORVAObjectRegistry::create();

    KORVASchedule schedule;
    schedule.getActive(registry.get())->setValue(true);
    schedule.getDailyPeriod(registry.get())->setValue("hour");
    schedule.getEveryNPeriods(registry.get())->setValue(2);

    PathPrinter printer;
    KORVASAXObjectSerializer().serialize(&schedule, schedule.getObjectType(), "schedule", printer);
}
