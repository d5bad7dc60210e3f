// Made by korva-schemac from sample/sample.xsd; do not edit.
// The records in which the objects of the schema keep their fields, bases before derived classes.
#pragma once

#include "core/Descriptor.h"

#include <korva/KORVAAccountArray.h>
#include <korva/KORVAExport.h>
#include <korva/KORVAStringArray.h>

#if KORVA_CORE_VERSION != 1
#error "This file was made for another version of the core: run korva-schemac again."
#endif

class KORVAAccessEnum;
class KORVABaseClass;
class KORVAGuid;
class KORVASchemaInfo;
class KORVAStringProp;
class KORVAXSBase64Binary;

struct KORVABaseClass_PrivateData : korva::Record {
    KORVAStringProp* name = nullptr;
    KORVABaseClass* owner = nullptr;
};
struct KORVABaseProp_PrivateData : korva::Record {
    KORVASchemaInfo* schemaInfo = nullptr;
};
struct KORVASchemaInfo_PrivateData : korva::Record {
};
struct KORVAFolder_PrivateData : KORVABaseClass_PrivateData {
};
struct KORVAAccount_PrivateData : KORVAFolder_PrivateData {
    KORVAAccessEnum* access = nullptr;
    bool active = false;
    bool activeIsNull = true;
    const char* born = nullptr;
    const char* class_ = nullptr;
    int default_ = 0;
    bool default_IsNull = true;
    KORVAAccountArray friends;
    KORVAGuid* id = nullptr;
    KORVAXSBase64Binary* picture = nullptr;
    int quota = 0;
    bool quotaIsNull = true;
    float rate = 0;
    bool rateIsNull = true;
    float share = 0;
    bool shareIsNull = true;
    KORVAStringArray tags;
    const char* text = nullptr;
    const char* wake = nullptr;
};
struct KORVAStringArrayProp_PrivateData : KORVABaseProp_PrivateData {
    KORVAStringArray value;
};
struct KORVAStringProp_PrivateData : KORVABaseProp_PrivateData {
    const char* value = nullptr;
};
