/// The calls that the client makes.
#pragma once

#include <korva/KORVAPortTypeBinding.h>
#include <zel/ZELSmartPointer.h>

class KORVAAsynchRequest;

namespace live_call {

using Binding = ZELSmartPointer<KORVAPortTypeBinding>;

/// Runs the report that is stored at `path`, which must outlive the call.
Binding makeRun(const char* path);

/// Runs a report that is stored nowhere: its specification comes with the request.
Binding makeRunSpecification();

/// Fetches the output of a conversation in a format, whose name must outlive the call. The handle
/// is copied, so it may belong to a call that has gone.
Binding makeGetOutput(KORVAAsynchRequest& conversation, const char* format);

}  // namespace live_call
