/// The numbered fixed texts that the wire form is made of.
#pragma once

#include <i18n/I18NExport.h>
#include <zel/I18NString.h>

#include <string_view>

class I18N_EXPORT KORVAI18NRes {
public:
    KORVAI18NRes() = delete;

    /// What the numbers stand for.
    enum Number : unsigned {
        eSoapEncodingNamespace = 0,
        eBusPrefix = 1,  ///< with its colon
        eSchemaNamespace = 2,
        eSchemaInstanceNamespace = 3,
        eArrayTypeName = 4,       ///< the value of `xsi:type` for an array
        eArrayTypeAttribute = 5,  ///< qualified
        eDeclareBus = 6,
        eDeclareSchemaInstance = 7,
        eDeclareSoapEncoding = 8,
        eDeclareSchema = 9,
        eTypeAttribute = 10,  ///< qualified
        eNilAttribute = 11,   ///< qualified
        eFaultCode = 12,
        eFaultString = 13,
        eFaultActor = 14,
        eFaultDetail = 15,
        eSoapEnvelopeNamespace = 16,
        eBusNamespace = 17,
        eMessageComponent = 18,  ///< the component of the message catalogue
        eTrue = 19,
        eFalse = 20
    };

    /// The text of eBusPrefix, for constants that are built on it.
    static consteval std::string_view busPrefix() noexcept { return "bus:"; }

    /// The text with this number, a literal in UTF-8; null if there is none.
    static const char* getChar(unsigned number) noexcept;

    /// The same with its length; an empty view if there is none.
    static std::string_view getView(unsigned number) noexcept;

    /// The same as a text in both encodings; the empty text if there is none.
    static I18NString getString(unsigned number);
};
