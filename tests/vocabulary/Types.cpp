#include "tests/vocabulary/Types.h"

#include "tests/support/SchemaScan.h"
#include "tests/support/Tables.h"

#include <korva/KORVAException.h>
#include <korva/KORVASchemaTypesFactory.h>
#include <korva/KORVA_ArrayObject.h>
#include <korva/KORVA_EnumObject.h>
#include <korva/KORVA_RestrictedString.h>

#include <gtest/gtest.h>
#include <zlib.h>

namespace korva::test {

std::int32_t crcOf(const std::string& text) {
    return static_cast<std::int32_t>(
        crc32(0, reinterpret_cast<const Bytef*>(text.data()), static_cast<uInt>(text.size())));
}

KORVASchemaTypeI::ObjectType typeOf(const std::string& name) {
    const KORVASchemaTypeI::ObjectType type =
        KORVASchemaTypesFactory::getInstance().busTypeToObjectType(name.c_str());
    EXPECT_NE(type, KORVASchemaTypeI::e_Unknown) << name;
    return type;
}

std::unique_ptr<KORVASchemaTypeI> make(const std::string& name) {
    return std::unique_ptr<KORVASchemaTypeI>(
        KORVASchemaTypesFactory::getInstance().create(typeOf(name)));
}

bool isAbstract(const std::string& name) {
    try {
        make(name);
    } catch (const KORVAException& refusal) {
        EXPECT_EQ(refusal.getMessages()[0].getId(), 0xEA47EC7BU);
        return true;
    }
    return false;
}

const std::vector<std::string>& typeNames() {
    static const std::vector<std::string> names = tableLines("type-names.txt");
    return names;
}

Family familyOf(const std::string& name) {
    if (isAbstract(name)) return name == "baseProp" ? Family::Property : Family::Class;
    const std::unique_ptr<KORVASchemaTypeI> object = make(name);
    if (dynamic_cast<const KORVA_ArrayObject*>(object.get()) != nullptr) return Family::Array;
    if (dynamic_cast<const KORVA_EnumObject*>(object.get()) != nullptr) return Family::Enum;
    if (dynamic_cast<const KORVA_RestrictedString*>(object.get()) != nullptr)
        return Family::RestrictedString;
    return object->isa(KORVASchemaTypeI::eKORVABaseProp) ? Family::Property : Family::Class;
}

std::vector<std::string> namesOf(Family family) {
    std::vector<std::string> out;
    for (const std::string& name : typeNames())
        if (familyOf(name) == family) out.push_back(name);
    return out;
}

std::vector<std::string> childrenOf(const KORVASchemaTypeI& object) {
    std::vector<const char*> names;
    object.getChildObjectNames(names, false);
    return {names.begin(), names.end()};
}

std::string childTypeOf(const KORVASchemaTypeI& object, const std::string& child) {
    return KORVASchemaTypesFactory::getInstance().objectTypeToXSIType(
        object.getChildType(child.c_str()));
}

}  // namespace korva::test
