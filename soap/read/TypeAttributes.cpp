#include "soap/read/TypeAttributes.h"

#include "soap/read/Utf16.h"

#include <i18n/KORVAI18NRes.h>
#include <korva/KORVA_AttachmentHandler.h>

#include <xercesc/sax2/Attributes.hpp>

namespace korva {

namespace {

bool isIn(KORVAI18NRes::Number uri, const xercesc::Attributes& attributes, XMLSize_t i) {
    return equals(attributes.getURI(i), KORVAI18NRes::getView(uri));
}

}  // namespace

TypeAttributes::TypeAttributes(const xercesc::Attributes& attributes) {
    const XMLSize_t count = attributes.getLength();
    for (XMLSize_t i = 0; i < count; ++i) {
        const XMLCh* const name = attributes.getLocalName(i);
        // The names differ in their first letter.
        switch (*name) {
            case u't':
                if (equals(name, "type") &&
                    isIn(KORVAI18NRes::eSchemaInstanceNamespace, attributes, i))
                    type = attributes.getValue(i);
                break;
            case u'a':
                if (equals(name, "arrayType") &&
                    isIn(KORVAI18NRes::eSoapEncodingNamespace, attributes, i))
                    arrayType = attributes.getValue(i);
                break;
            case u'n':
                if (equals(name, "nil") &&
                    isIn(KORVAI18NRes::eSchemaInstanceNamespace, attributes, i))
                    isNil = equals(attributes.getValue(i), "true");
                break;
            case u'h':
                if (equals(attributes.getQName(i), "href"))
                    contentId = KORVA_AttachmentHandler::getCid(attributes.getValue(i));
                break;
            default: break;
        }
    }
}

}  // namespace korva
