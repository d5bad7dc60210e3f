/// The calls that every toolkit makes and answers. Each has a name, under which it stands in the
/// programs of tests/interop, and in tests/data/toolkits.
#pragma once

#include <korva/KORVAPortTypeBinding.h>
#include <zel/ZELSmartPointer.h>

#include <string>

namespace korva::test {

using Call = ZELSmartPointer<KORVAPortTypeBinding>;

/// A call of the event management service: "run", or "trigger" for the case of that name. Its
/// request holds what the case says.
/// @throws std::out_of_range there is no such case
Call makeCall(const std::string& name);

/// What the request of a case holds, as describe() tells it.
std::string requestOf(const std::string& name);

/// Fills the reply of a call.
/// @throws std::out_of_range there is no such case
void fillReply(const std::string& name, KORVAPortTypeBinding& call);

/// What the reply of a case holds, as describe() tells it.
std::string replyOf(const std::string& name);

}  // namespace korva::test
