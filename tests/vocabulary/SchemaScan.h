/// The XSD files of the build, read without the schema compiler: for what the library does not
/// tell.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace korva::test {

struct ScannedField {
    std::string name;
    std::string type;  ///< "bus:schedule", "xs:int"
};

struct ScannedType {
    std::string name;
    std::string base;  ///< XML name without prefix; empty when there is none
    bool isAbstract = false;
    bool openFields = false;           ///< its fields are not known
    bool open = false;                 ///< an enumeration with values whose words are not known
    int openWords = 0;                 ///< how many; 0 where that is not known either
    std::vector<ScannedField> fields;  ///< own fields, in declared order
    std::vector<std::string> words;    ///< of an enumeration, in declared order
};

/// All complex and simple types by name.
class SchemaScan {
public:
    static const SchemaScan& instance();

    const std::map<std::string, ScannedType>& types() const { return m_types; }
    const ScannedType& type(const std::string& name) const { return m_types.at(name); }

    /// Whether `name` is `base` or derived from it.
    bool isA(const std::string& name, const std::string& base) const;
    /// The names of `base` and of all types derived from it.
    std::vector<std::string> derivedFrom(const std::string& base) const;
    /// The fields of all base classes and of the type itself, in this order.
    std::vector<ScannedField> allFields(const std::string& name) const;

private:
    SchemaScan();
    void read(const std::string& path);

    std::map<std::string, ScannedType> m_types;
};

}  // namespace korva::test
