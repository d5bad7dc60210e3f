/// What the service does: it has one report, and gives its output in three formats.
#pragma once

#include "examples/live_call/Endpoint.h"

namespace live_call {

/// `run` and `runSpecification` open a conversation and give a first page, `getOutput` gives the
/// rest as an attachment: "PDF" as it is, "CSV" compressed.
///
/// The service keeps nothing between calls: what a conversation needs travels in its state data.
Operations reportOperations();

}  // namespace live_call
