#include "bridges/FixedTexts.h"

#include <zel/I18NString.h>
#include <zel/ZELImmortal.h>

#include <xercesc/util/XMLUni.hpp>

#include <array>
#include <cstddef>
#include <new>
#include <string>

namespace korva {

namespace {

using Number = KORVAI18NRes::Number;

/// All texts, made on first use and never destroyed.
class FixedTexts {
public:
    static const FixedTexts& get() {
        return zel::immortal<const FixedTexts>([](void* at) { return ::new (at) FixedTexts; });
    }

    const XMLCh* operator[](Number number) const { return m_texts[number].wide(); }

private:
    FixedTexts() {
        for (std::size_t number = 0; number < m_texts.size(); ++number) {
            m_texts[number] = KORVAI18NRes::getString(static_cast<unsigned>(number));
            m_texts[number].wide();
        }
    }

    std::array<I18NString, KORVAI18NRes::eFalse + 1> m_texts;
};

const XMLCh* uriOf(Number name) {
    switch (name) {
        case KORVAI18NRes::eTypeAttribute:
        case KORVAI18NRes::eNilAttribute: return fixedText(KORVAI18NRes::eSchemaInstanceNamespace);
        case KORVAI18NRes::eArrayTypeAttribute:
            return fixedText(KORVAI18NRes::eSoapEncodingNamespace);
        default: return xercesc::XMLUni::fgXMLNSURIName;
    }
}

}  // namespace

const XMLCh* fixedText(Number number) {
    return FixedTexts::get()[number];
}

WideName fixedName(Number number) {
    const XMLCh* const qName = fixedText(number);
    const XMLCh* localName = qName;
    while (*localName++ != u':') {
    }
    return {uriOf(number), localName, qName};
}

Declarations declarations() {
    const auto declare = [](Number name, Number uri) {
        return WideDeclaration{fixedName(name), fixedText(uri)};
    };
    return {{declare(KORVAI18NRes::eDeclareSchema, KORVAI18NRes::eSchemaNamespace),
             declare(KORVAI18NRes::eDeclareSchemaInstance, KORVAI18NRes::eSchemaInstanceNamespace),
             declare(KORVAI18NRes::eDeclareSoapEncoding, KORVAI18NRes::eSoapEncodingNamespace),
             declare(KORVAI18NRes::eDeclareBus, KORVAI18NRes::eBusNamespace)}};
}

}  // namespace korva
