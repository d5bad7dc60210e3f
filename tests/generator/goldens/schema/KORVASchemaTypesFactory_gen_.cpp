// Made by korva-schemac from sample/sample.xsd; do not edit.
#include "core/ObjectCreation.h"
#include "schema/KORVADescriptors_gen_.h"

#include <korva/KORVAAccessEnum.h>
#include <korva/KORVAAccount.h>
#include <korva/KORVAAccountArray.h>
#include <korva/KORVAAccountSet.h>
#include <korva/KORVABooleanArray.h>
#include <korva/KORVAFolder.h>
#include <korva/KORVAGuid.h>
#include <korva/KORVAIntegerArray.h>
#include <korva/KORVASchemaInfo.h>
#include <korva/KORVAStringArray.h>
#include <korva/KORVAStringArrayProp.h>
#include <korva/KORVAStringProp.h>
#include <korva/KORVAUnknownEnum.h>

#if KORVA_CORE_VERSION != 1
#error "This file was made for another version of the core: run korva-schemac again."
#endif

namespace korva {

static_assert(typeIndexBits == 10, "run korva-schemac again");

namespace {

using NameToType = KORVASchemaTypesFactory::KORVATypeNameToType;

constexpr TypeDescriptor types[] = {
    {KORVASchemaTypeI::eKORVASchemaInfo, KORVASchemaTypeI::e_Unknown,
     "bus:schemaInfo", &descriptors::KORVASchemaInfo,
     &typeid(::KORVASchemaInfo), &createObject<::KORVASchemaInfo>,
     &copyObject<::KORVASchemaInfo, KORVASchemaTypeI::eKORVASchemaInfo>},
    {KORVASchemaTypeI::eKORVAAccountSet, KORVASchemaTypeI::eKORVAAccount,
     "bus:accountSet", nullptr,
     &typeid(::KORVAAccountSet), &createObject<::KORVAAccountSet>,
     &copyObject<::KORVAAccountSet, KORVASchemaTypeI::eKORVAAccountSet>},
    {KORVASchemaTypeI::eKORVABaseProp, KORVASchemaTypeI::e_Unknown,
     "bus:baseProp", &descriptors::KORVABaseProp,
     nullptr, nullptr, nullptr},
    {KORVASchemaTypeI::eKORVAStringArrayProp, KORVASchemaTypeI::e_Unknown,
     "bus:stringArrayProp", &descriptors::KORVAStringArrayProp,
     &typeid(::KORVAStringArrayProp), &createObject<::KORVAStringArrayProp>,
     &copyObject<::KORVAStringArrayProp, KORVASchemaTypeI::eKORVAStringArrayProp>},
    {KORVASchemaTypeI::eKORVAGuid, KORVASchemaTypeI::e_Unknown,
     "bus:guid", nullptr,
     &typeid(::KORVAGuid), &createObject<::KORVAGuid>,
     &copyObject<::KORVAGuid, KORVASchemaTypeI::eKORVAGuid>},
    {KORVASchemaTypeI::eKORVAAccount, KORVASchemaTypeI::e_Unknown,
     "bus:account", &descriptors::KORVAAccount,
     &typeid(::KORVAAccount), &createObject<::KORVAAccount>,
     &copyObject<::KORVAAccount, KORVASchemaTypeI::eKORVAAccount>},
    {KORVASchemaTypeI::eKORVAAccessEnum, KORVASchemaTypeI::e_Unknown,
     "bus:accessEnum", nullptr,
     &typeid(::KORVAAccessEnum), &createObject<::KORVAAccessEnum>,
     &copyObject<::KORVAAccessEnum, KORVASchemaTypeI::eKORVAAccessEnum>},
    {KORVASchemaTypeI::eKORVAStringArray, KORVASchemaTypeI::eString,
     "bus:stringArray", nullptr,
     &typeid(::KORVAStringArray), &createObject<::KORVAStringArray>,
     &copyObject<::KORVAStringArray, KORVASchemaTypeI::eKORVAStringArray>},
    {KORVASchemaTypeI::eKORVAStringProp, KORVASchemaTypeI::e_Unknown,
     "bus:stringProp", &descriptors::KORVAStringProp,
     &typeid(::KORVAStringProp), &createObject<::KORVAStringProp>,
     &copyObject<::KORVAStringProp, KORVASchemaTypeI::eKORVAStringProp>},
    {KORVASchemaTypeI::eKORVAAccountArray, KORVASchemaTypeI::eKORVAAccount,
     "bus:accountArray", nullptr,
     &typeid(::KORVAAccountArray), &createObject<::KORVAAccountArray>,
     &copyObject<::KORVAAccountArray, KORVASchemaTypeI::eKORVAAccountArray>},
    {KORVASchemaTypeI::eKORVAIntegerArray, KORVASchemaTypeI::eInteger,
     "bus:integerArray", nullptr,
     &typeid(::KORVAIntegerArray), &createObject<::KORVAIntegerArray>,
     &copyObject<::KORVAIntegerArray, KORVASchemaTypeI::eKORVAIntegerArray>},
    {KORVASchemaTypeI::eKORVABooleanArray, KORVASchemaTypeI::eBoolean,
     "bus:booleanArray", nullptr,
     &typeid(::KORVABooleanArray), &createObject<::KORVABooleanArray>,
     &copyObject<::KORVABooleanArray, KORVASchemaTypeI::eKORVABooleanArray>},
    {KORVASchemaTypeI::eKORVABaseClass, KORVASchemaTypeI::e_Unknown,
     "bus:baseClass", &descriptors::KORVABaseClass,
     nullptr, nullptr, nullptr},
    {KORVASchemaTypeI::eKORVAFolder, KORVASchemaTypeI::e_Unknown,
     "bus:folder", &descriptors::KORVAFolder,
     &typeid(::KORVAFolder), &createObject<::KORVAFolder>,
     &copyObject<::KORVAFolder, KORVASchemaTypeI::eKORVAFolder>},
    {KORVASchemaTypeI::eKORVAUnknownEnum, KORVASchemaTypeI::e_Unknown,
     "bus:unknownEnum", nullptr,
     &typeid(::KORVAUnknownEnum), &createObject<::KORVAUnknownEnum>,
     &copyObject<::KORVAUnknownEnum, KORVASchemaTypeI::eKORVAUnknownEnum>},
};

constexpr std::uint16_t typeIndex[] = {
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,
    0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1,
    1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2,
    2, 2, 3, 3, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5,
    5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5,
    5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5,
    5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5,
    5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5,
    5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5,
    5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5,
    5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5,
    5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5,
    5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5,
    5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 6, 6, 6, 6, 6, 6, 6, 6, 6, 6, 6,
    6, 6, 6, 6, 6, 6, 6, 6, 6, 6, 6, 6, 6, 6, 6, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7,
    7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8,
    8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 8, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9,
    9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9,
    9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9,
    9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9,
    9, 9, 9, 9, 9, 9, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10,
    10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10,
    10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10,
    10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 10, 11, 11, 11, 11, 11, 11, 12,
    12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12,
    12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12,
    12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12,
    12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12,
    12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12,
    12, 12, 12, 12, 12, 12, 12, 13, 13, 13, 13, 13, 13, 13, 13, 13, 13, 13, 13, 13, 13, 13, 13, 13,
    13, 13, 14, 14, 14, 14, 14, 14, 14, 14, 14, 14, 14, 14, 14, 14, 14, 14, 14, 14, 14, 14, 14, 14,
    14, 14, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15,
    15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15, 15,
    15, 15, 15, 15, 15, 15, 15, 15,
};

constexpr NameToType names[] = {
    {"accessEnum", KORVASchemaTypeI::eKORVAAccessEnum},
    {"account", KORVASchemaTypeI::eKORVAAccount},
    {"accountArray", KORVASchemaTypeI::eKORVAAccountArray},
    {"accountSet", KORVASchemaTypeI::eKORVAAccountSet},
    {"baseClass", KORVASchemaTypeI::eKORVABaseClass},
    {"baseProp", KORVASchemaTypeI::eKORVABaseProp},
    {"booleanArray", KORVASchemaTypeI::eKORVABooleanArray},
    {"folder", KORVASchemaTypeI::eKORVAFolder},
    {"guid", KORVASchemaTypeI::eKORVAGuid},
    {"integerArray", KORVASchemaTypeI::eKORVAIntegerArray},
    {"schemaInfo", KORVASchemaTypeI::eKORVASchemaInfo},
    {"stringArray", KORVASchemaTypeI::eKORVAStringArray},
    {"stringArrayProp", KORVASchemaTypeI::eKORVAStringArrayProp},
    {"stringProp", KORVASchemaTypeI::eKORVAStringProp},
    {"unknownEnum", KORVASchemaTypeI::eKORVAUnknownEnum},
};

constexpr NameToType arrayNames[] = {
    {"account[]", KORVASchemaTypeI::eKORVAAccountArray},
    {nullptr, KORVASchemaTypeI::e_Unknown}, // not counted
};

} // namespace

constinit const TypeTables typeTables = {
    types,
    typeIndex,
    15,
    names,
    15,
    arrayNames,
    1,
};

} // namespace korva
