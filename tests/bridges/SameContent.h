/// Holds an object of one model against one of the other, without the library's own conversion.
#pragma once

#include <korva/KORVASchemaTypeI.h>
#include <tarn/TARNSchemaTypeI.h>

#include <gtest/gtest.h>

namespace korva::test {

/// Whether both are of types of one name, have the same children in the same order, and equal
/// values in them. Tells where they part.
testing::AssertionResult holdsTheSame(const KORVASchemaTypeI& object, const TARNSchemaTypeI& other);

}  // namespace korva::test
