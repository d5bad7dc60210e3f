/// What each kind of field looks like in what is made: one row a kind, one set of templates a
/// shape.
#pragma once

#include "generator/model/Schema.h"

#include <string_view>

namespace korva::schemac::emit {

/// Templates for the Printer, with $class$, $type$, $member$ and $stem$ for values; those of the
/// maker also have $note$ and $creator$, and `member` has $zero$. An empty one prints nothing.
struct FieldShape {
    std::string_view state;  ///< the sentence that tells what a getter gives at first
    std::string_view member;
    std::string_view getter;
    std::string_view maker;
    std::string_view setter;
    std::string_view getterBody;
    std::string_view makerBody;
    std::string_view setterBody;
    bool hasFlag = false;  ///< a second member tells whether there is a value
};

struct FieldKindRow {
    model::FieldKind kind;
    std::string_view name;  ///< of the enumerator
    /// The type of a value, or what a pointer points at; empty for the class of the declared type.
    std::string_view type;
    std::string_view zero;   ///< what a value is at first
    std::string_view array;  ///< the base of arrays of it, with $type$; empty: there are none
    const FieldShape& shape;
};

const FieldKindRow& rowOf(model::FieldKind kind);

}  // namespace korva::schemac::emit
