// Puts an object into a document in memory, adds to it there, and reads it back.
#include <korva/KORVABooleanProp.h>
#include <korva/KORVADOMObjectDeserializer.h>
#include <korva/KORVADOMObjectSerializer.h>
#include <korva/KORVANmtokenProp.h>
#include <korva/KORVAObjectRegistry.h>
#include <korva/KORVASchedule.h>
#include <korva/KORVA_XmlPlatform.h>
#include <zel/ZELSmartPointer.h>
#include <zelidom/ZELIDOM_Document.h>

#include <iostream>
#include <string>

namespace {

void print(const ZELIDOM_Node& node, const std::string& indent) {
    if (node.getNodeType() == ZELIDOM_Node::TEXT_NODE)
        std::cout << indent << node.getNodeValue().utf8() << '\n';
    else
        std::cout << indent << node.getNodeName().utf8() << '\n';
    for (ZELIDOM_Node child = node.getFirstChild(); !child.isNull(); child = child.getNextSibling())
        print(child, indent + "  ");
}

}  // namespace

int main() {
    const KORVA_XmlPlatform platform;
    const ZELSmartPointer<KORVAObjectRegistry> registry = KORVAObjectRegistry::create();

    KORVASchedule schedule;
    schedule.getActive(registry.get())->setValue(true);
    schedule.getDailyPeriod(registry.get())->setValue("hour");

    ZELIDOM_Document document = ZELIDOM_Document::create();
    ZELIDOM_Element element = KORVADOMObjectSerializer().serialize(
        &schedule, schedule.getObjectType(), "bus:schedule", document);
    document.appendChild(element);

    // What the schema declares needs no type of its own.
    ZELIDOM_Element value = document.createElementNS("", "value");
    value.appendChild(document.createTextNode("indefinite"));
    ZELIDOM_Element endType = document.createElementNS("", "endType");
    endType.appendChild(value);
    element.appendChild(endType);
    print(document, "");

    KORVADOMObjectDeserializer deserializer;
    const auto& read = static_cast<KORVASchedule&>(*deserializer.deserialize(element));
    std::cout << "active:      " << (*read.getActive()->getValue() ? "yes" : "no") << '\n'
              << "dailyPeriod: " << read.getDailyPeriod()->getValue() << '\n'
              << "endType:     " << read.getEndType()->getValue() << '\n';
}
