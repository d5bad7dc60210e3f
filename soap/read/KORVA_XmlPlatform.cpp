#include "korva/KORVA_XmlPlatform.h"

#include "core/NumberedError.h"
#include "soap/read/Utf16.h"

#include <i18n/KORVAMessageId.h>
#include <zel/ZELFrame.h>
#include <zel/ZELOutOfMemoryError.h>
#include <zel/ZELThrow.h>

#include <xercesc/util/OutOfMemoryException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLException.hpp>

KORVA_XmlPlatform::KORVA_XmlPlatform() {
    constexpr const char* label = "KORVA_XmlPlatform::KORVA_XmlPlatform";
    ZEL_TRY {
        xercesc::XMLPlatformUtils::Initialize();
    }
    catch (const xercesc::OutOfMemoryException&) {
        ZEL_THROW(ZELOutOfMemoryError(), label);
    }
    catch (const xercesc::XMLException& exception) {
        KORVA_RAISE(eKORVA_NoXmlPlatform, label, korva::utf8(exception.getMessage()).c_str());
    }
    ZEL_CATCH(label);
}

KORVA_XmlPlatform::~KORVA_XmlPlatform() {
    xercesc::XMLPlatformUtils::Terminate();
}
