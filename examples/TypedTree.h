/// Prints any schema object, or all parameters of a message, as an indented tree.
#pragma once

#include <iosfwd>

class KORVAMessageI;
class KORVASchemaTypeI;

/// Prints what is set in `object` below a line with `name` and its type.
void printTree(std::ostream& out, const char* name, const KORVASchemaTypeI& object);

/// Prints the bus header and the parameters of `message`.
void printTree(std::ostream& out, KORVAMessageI& message);
