#include "soap/write/WireTokens.h"

#include <brim/BRIMOutputStream.h>
#include <i18n/KORVAI18NRes.h>

namespace korva::wire {

namespace {

struct Attribute {
    std::string_view start;  ///< the name, up to the first quote of the value
    KORVAI18NRes::Number value;
};

constexpr Attribute objectNamespaces[] = {
    {" xmlns:SOAP-ENC=\"", KORVAI18NRes::eSoapEncodingNamespace},
    {" xmlns:bus=\"", KORVAI18NRes::eBusNamespace},
    {" xmlns:xsi=\"", KORVAI18NRes::eSchemaInstanceNamespace},
    {" xmlns:xs=\"", KORVAI18NRes::eSchemaNamespace}};

void write(BRIMOutputStream& stream, std::string_view token) {
    stream.write(token.data(), token.size());
}

void writeAttribute(BRIMOutputStream& stream, const Attribute& attribute) {
    write(stream, attribute.start);
    write(stream, KORVAI18NRes::getChar(attribute.value));
    write(stream, "\"");
}

}  // namespace

void writeObjectNamespaces(BRIMOutputStream& stream) {
    for (const Attribute& attribute : objectNamespaces)
        writeAttribute(stream, attribute);
}

void writeEnvelopeStart(BRIMOutputStream& stream) {
    write(stream, "<SOAP-ENV:Envelope");
    writeAttribute(stream, {" xmlns:SOAP-ENV=\"", KORVAI18NRes::eSoapEnvelopeNamespace});
    writeObjectNamespaces(stream);
    writeAttribute(stream, {" SOAP-ENV:encodingStyle=\"", KORVAI18NRes::eSoapEncodingNamespace});
    write(stream, ">");
}

}  // namespace korva::wire
