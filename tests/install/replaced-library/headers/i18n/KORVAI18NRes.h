/// The numbered texts of the wire, from this project.
#pragma once

#include <zel/I18NString.h>

#include <string_view>

class KORVAI18NRes {
public:
    enum Number : unsigned {
        eSoapEncodingNamespace,
        eBusPrefix,
        eSchemaNamespace,
        eSchemaInstanceNamespace,
        eArrayTypeName,
        eArrayTypeAttribute,
        eDeclareBus,
        eDeclareSchemaInstance,
        eDeclareSoapEncoding,
        eDeclareSchema,
        eTypeAttribute,
        eNilAttribute,
        eFaultCode,
        eFaultString,
        eFaultActor,
        eFaultDetail,
        eSoapEnvelopeNamespace,
        eBusNamespace,
        eMessageComponent,
        eTrue,
        eFalse
    };

    static consteval std::string_view busPrefix() noexcept { return "bus:"; }
    static const char* getChar(unsigned number) noexcept;
    static std::string_view getView(unsigned number) noexcept;
    static I18NString getString(unsigned number);
};
