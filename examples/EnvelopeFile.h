/// Reads an envelope of any operation from a file, whichever end of a call wrote it.
#pragma once

#include <zel/ZELSmartPointer.h>

class KORVAMessageI;

/// The message of the envelope in the file at `path`, request or reply, told apart by the name of
/// the operation element.
/// @throws ZELThrowable the file cannot be read, or is no envelope of a known operation
ZELSmartPointer<KORVAMessageI> readEnvelopeFile(const char* path);
