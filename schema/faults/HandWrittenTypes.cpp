// The rows of the classes that stand in no schema file.
#include "core/ObjectCreation.h"

#include <korva/KORVASOAPFault.h>
#include <korva/KORVAUndocumentedFaultDetail.h>
#include <korva/KORVAUndocumentedFaultDetailArray.h>

namespace korva {

namespace {

template <class X>
bool equal(const KORVASchemaTypeI& left, const KORVASchemaTypeI& right) {
    return static_cast<const X&>(left).operator==(right);
}

template <class X, ObjectType identity>
constexpr HandWrittenType describe(const char* className, const char* xmlName) {
    return {{identity, KORVASchemaTypeI::e_Unknown, className, nullptr, nullptr, &createObject<X>,
             &copyObject<X, identity>},
            xmlName,
            &equal<X>};
}

}  // namespace

constinit const HandWrittenType handWrittenTypes[handWrittenTypeCount] = {
    describe<KORVAUndocumentedFaultDetail, KORVASchemaTypeI::eKORVAUndocumentedFaultDetail>(
        "KORVAUndocumentedFaultDetail", "undocumentedFaultDetail"),
    describe<KORVAUndocumentedFaultDetailArray,
             KORVASchemaTypeI::eKORVAUndocumentedFaultDetailArray>(
        "KORVAUndocumentedFaultDetailArray", "undocumentedFaultDetailArray"),
    describe<KORVASOAPFault, KORVASchemaTypeI::eKORVASOAPFault>("KORVASOAPFault", "SOAPFault")};

}  // namespace korva
