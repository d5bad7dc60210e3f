#include "soap/read/PortTypeAdvice.h"

#include "core/NumberedError.h"

#include <i18n/KORVAMessageId.h>
#include <korva/KORVAPortTypeI.h>

#include <algorithm>
#include <string>

namespace korva {

namespace {

/// A namespace of a bus: "http://bus.example" and "/schemas/reportService/1".
struct BusNamespace {
    explicit BusNamespace(std::string_view uri)
        : authority(uri.substr(0, uri.find("/schemas/"))), path(uri.substr(authority.size())) {}

    std::string_view authority;
    std::string_view path;
};

}  // namespace

void refusePortType(const char* operation, std::string_view uri,
                    const std::vector<KORVAPortTypeI*>& supported, const char* function) {
    const std::string text(uri);
    const BusNamespace found(uri);
    const auto other =
        std::find_if(supported.begin(), supported.end(), [&](const KORVAPortTypeI* portType) {
            return !found.path.empty() &&
                   BusNamespace(portType->getBoundNamespace()).path == found.path;
        });
    if (other == supported.end()) KORVA_RAISE(eKORVA_NoPortType, function, operation, text.c_str());
    const BusNamespace own((*other)->getBoundNamespace());
    raise({{eKORVA_NoPortType, {operation, text.c_str()}},
           {eKORVA_ForeignAuthority,
            {(*other)->getName(), std::string(found.authority).c_str(),
             std::string(own.authority).c_str()}}},
          ZEL_LOCATION, function);
}

}  // namespace korva
