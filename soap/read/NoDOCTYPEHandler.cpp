#include "soap/read/NoDOCTYPEHandler.h"

#include "core/NumberedError.h"

#include <i18n/KORVAMessageId.h>

namespace korva {

void NoDOCTYPEHandler::resetDocType() {
    KORVA_RAISE(eKORVA_DoctypeRefused, "KORVAXMLDeserializer::parse");
}

}  // namespace korva
