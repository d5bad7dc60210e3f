/// Envelopes to measure with, made from a seed: the same on every machine.
#pragma once

#include <korva/KORVAPortTypeBinding.h>
#include <zel/ZELSmartPointer.h>

#include <cstddef>
#include <string>

/// A binding whose messages are filled, and the port type it came from.
using Call = ZELSmartPointer<KORVAPortTypeBinding>;

/// A run request of 3.8 KB: a bus header with passport, session and tracking, a parameter value,
/// two options.
Call makeRunRequest();

/// A query whose reply holds content objects with the properties that a listing asks for, enough
/// of them to make about `bytes` of envelope.
Call makeContentReply(std::size_t bytes);

/// A run request whose one parameter value is a text of `bytes`, one character in 50 of which must
/// be escaped, and one in 200 lies beyond ASCII.
Call makeTextRequest(std::size_t bytes);

/// A map preview whose image has `bytes` bytes.
Call makeBinaryReply(std::size_t bytes);

/// What the serializer writes for the input message, or for the output message.
std::string inputEnvelope(KORVAPortTypeBinding& call);
std::string outputEnvelope(KORVAPortTypeBinding& call);
