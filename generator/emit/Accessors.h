/// What classes, properties and messages have in common: records, tables of fields, accessors.
#pragma once

#include "generator/emit/Printer.h"
#include "generator/model/Schema.h"

#include <string>
#include <string_view>
#include <vector>

namespace korva::schemac::emit {

/// The type of a field's member, or what it points at.
std::string_view cppType(const model::Field& field);

/// The members of a record, in declared order.
void printMembers(Printer& printer, const std::vector<model::Field>& fields);

/// The rows of a table of korva::FieldDescriptor.
void printFieldRows(Printer& printer, const std::string& recordName,
                    const std::vector<model::Field>& fields);

/// Declarations for the public section of a class.
void declareAccessors(Printer& printer, const model::Field& field);

/// Definitions of the same, outside of the class.
void defineAccessors(Printer& printer, const std::string& className, const model::Field& field);

/// The classes that the accessors of `fields` name, and those that they create.
std::vector<std::string> namedClasses(const std::vector<model::Field>& fields);
std::vector<std::string> createdClasses(const std::vector<model::Field>& fields);

/// The default constructor, the copying one with `note` for its comment, and the destructor.
void declareLife(Printer& printer, const std::string& className, std::string_view note);

/// getObjectType, if `concrete`, generatedObjectName and getGeneratedObjectName. The definitions
/// need "core/ObjectName.h".
void declareNames(Printer& printer, bool concrete);
void defineNames(Printer& printer, const std::string& className, bool concrete);

}  // namespace korva::schemac::emit
