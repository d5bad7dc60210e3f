/// The fixed texts of the encoded form in the parser's UTF-16.
#pragma once

#include <i18n/KORVAI18NRes.h>

#include <xercesc/util/XercesDefs.hpp>

namespace korva {

/// A name as the parser tells it. The texts are the namer's.
struct WideName {
    const XMLCh* uri;
    const XMLCh* localName;  ///< what stands behind the colon of `qName`, or all of it
    const XMLCh* qName;
};

/// The declaration of a namespace on a root.
struct WideDeclaration {
    WideName name;     ///< "xmlns:bus"; its local name is the prefix that it declares
    const XMLCh* uri;  ///< the namespace
};

/// The text with this number. Lives as long as the process.
/// @throws ZELOutOfMemoryError no memory is left, on first use of any of these functions
const XMLCh* fixedText(KORVAI18NRes::Number number);

/// The qualified name with this number, of an attribute, in the namespace that its prefix stands
/// for.
WideName fixedName(KORVAI18NRes::Number number);

/// The declarations of the prefixes that the encoded form uses, in their order, that of the bus
/// last.
struct Declarations {
    static constexpr int count = 4;

    WideDeclaration rows[count];

    const WideDeclaration* begin() const { return rows; }
    const WideDeclaration* end() const { return rows + count; }
};
Declarations declarations();

}  // namespace korva
