// Made by korva-schemac from sample/sample.xsd; do not edit.
// The tables of fields of all classes and properties, and those of words of all enumerations.
#pragma once

#include "core/Descriptor.h"

#include <korva/KORVAExport.h>

#if KORVA_CORE_VERSION != 1
#error "This file was made for another version of the core: run korva-schemac again."
#endif

namespace korva::descriptors {

extern const EnumDescriptor KORVAAccessEnum;
extern const ClassDescriptor KORVAAccount;
extern const ClassDescriptor KORVABaseClass;
extern const ClassDescriptor KORVABaseProp;
extern const ClassDescriptor KORVAFolder;
extern const ClassDescriptor KORVASchemaInfo;
extern const ClassDescriptor KORVAStringArrayProp;
extern const ClassDescriptor KORVAStringProp;
extern const EnumDescriptor KORVAUnknownEnum;
} // namespace korva::descriptors
