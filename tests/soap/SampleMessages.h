/// Messages with everything that an envelope can hold, for tests of writing and reading.
#pragma once

#include <korva/KORVAMessageI.h>
#include <korva/KORVAPortTypeBinding.h>
#include <zel/ZELSmartPointer.h>

namespace korva::test {

using Call = ZELSmartPointer<KORVAPortTypeBinding>;

/// Request and reply of "activate", the request's one parameter filled.
Call makeActivateCall(const char* contentManagerURI);

/// Request and reply of "run"; nothing is filled.
Call makeRunCall();

/// Fills the bus header of a message: passport, roles, binaries, session, tracking.
void fillHeader(KORVAMessageI& message);

/// Fills the parameters of a run request: a path, values of several kinds, options.
void fillRunRequest(KORVAMessageI& request);

/// Fills a run reply: status, primary request, and details of different classes.
void fillRunReply(KORVAMessageI& reply);

}  // namespace korva::test
