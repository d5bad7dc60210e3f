/// Fills any object of the schema by the names of its children.
#pragma once

#include "tests/support/FillerValues.h"
#include "tests/support/Registry.h"
#include "tests/support/SchemaScan.h"

#include <korva/KORVASchemaTypeI.h>

#include <string>

class ZELByteBuffer;

namespace korva::test {

/// Gives every child of an object a value of its own, but for those that the values leave out.
/// Whatever it makes belongs to its registry.
class ObjectFiller {
public:
    /// Classes below the level `deepest` stay empty.
    ObjectFiller(const Schema& schema, Registry registry, int deepest = 3);
    /// Takes the values from `values`, which must outlive the filler.
    ObjectFiller(const Schema& schema, Registry registry, FillerValues& values, int deepest = 3);

    /// A new object of a concrete type, filled.
    KORVASchemaTypeI& make(const std::string& xmlName);

    /// A new object that may stand where `type` is declared, empty.
    KORVASchemaTypeI& makeEmpty(KORVASchemaTypeI::ObjectType type);

    /// Fills all children of `object`, and checks that each reads back as it was set.
    void fill(KORVASchemaTypeI& object);

    /// The same for one child.
    void fillChild(KORVASchemaTypeI& object, const char* name);

    /// A value as setChildObject takes it for `type`, filled; `place` says where it is to stand.
    /// Null for an enumeration without words, if the values have none such.
    void* makeValue(const std::string& place, KORVASchemaTypeI::ObjectType type);

    /// Whether an object of this type, or of any that stands in its place here, can hold a value.
    bool canBeFilled(KORVASchemaTypeI::ObjectType type) const;

private:
    void fill(KORVASchemaTypeI& object, int level);
    void fillArray(KORVASchemaTypeI& array, int level);
    void fillText(KORVASchemaTypeI& object, const SchemaType& type);
    void setChild(KORVASchemaTypeI& object, const char* name, KORVASchemaTypeI::ObjectType type,
                  int level);
    void* makeValue(const std::string& place, KORVASchemaTypeI::ObjectType type, int level);
    ZELByteBuffer* makeText(const std::string& text);
    KORVASchemaTypeI& create(const std::string& xmlName);

    const Schema& m_schema;
    Registry m_registry;
    FillerValues m_ownValues;
    FillerValues& m_values;
    int m_deepest;
};

/// All that can be read from an object by the names of its children, as text.
std::string dump(const KORVASchemaTypeI& object);

}  // namespace korva::test
