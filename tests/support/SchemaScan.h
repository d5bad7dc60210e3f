/// What the schema files say, read by other means than the library's own.
#pragma once

#include <korva/KORVASchemaTypeI.h>

#include <map>
#include <string>
#include <vector>

namespace korva::test {

struct SchemaField {
    std::string name;
    std::string type;  ///< as it stands: "bus:schedule", "xs:int"
};

struct SchemaType {
    enum Family { eClass, eArray, eEnum, eRestrictedString };

    Family family;
    bool isAbstract = false;
    std::string base;                 ///< classes and properties, without prefix; may be empty
    bool openFields = false;          ///< its fields are not known
    bool open = false;                ///< an enumeration with values whose words are not known
    int openWords = 0;                ///< how many; 0 where that is not known either
    std::vector<SchemaField> fields;  ///< own fields in declared order
    std::string element;              ///< arrays: "bus:schedule", "xs:int"
    std::vector<std::string> words;   ///< enumerations, in declared order
};

/// All types of the XSD files, each under its XML name.
class Schema {
public:
    using Types = std::map<std::string, SchemaType>;

    explicit Schema(Types types);

    Types::const_iterator begin() const { return m_types.begin(); }
    Types::const_iterator end() const { return m_types.end(); }
    std::size_t size() const { return m_types.size(); }
    const SchemaType& at(const std::string& name) const { return m_types.at(name); }

    /// Whether `name` is `base` or derived from it.
    bool isA(const std::string& name, const std::string& base) const;

    /// The names of `base` and of all types derived from it.
    std::vector<std::string> derivedFrom(const std::string& base) const;

    /// The concrete types that can stand where a type is declared: the type itself, or those below
    /// an abstract type, the one with the fewest fields first.
    const std::vector<std::string>& concreteNames(KORVASchemaTypeI::ObjectType type) const {
        return m_concrete.at(type);
    }

private:
    Types m_types;
    std::map<KORVASchemaTypeI::ObjectType, std::vector<std::string>> m_concrete;
};

/// All types of these XSD files.
Schema scan(const std::vector<std::string>& files);

/// All types of the XSD files that the build is made from, but for those of the SOAP encoding. Read
/// by the first call.
const Schema& builtSchema();

/// The fields of all bases, root first, and then those of the type.
std::vector<SchemaField> allFields(const Schema& schema, const std::string& name);

/// Whether a document can have a type as its root: of arrays it tells the type of the elements
/// only.
bool canBeRoot(const std::string& name, const SchemaType& type);

/// The identity that a type of the schema files has: zlib's CRC-32 for "bus:" types.
KORVASchemaTypeI::ObjectType identityOf(const std::string& type);

/// "KORVASchedule" for "schedule".
std::string classNameOf(const std::string& xmlName);

}  // namespace korva::test
