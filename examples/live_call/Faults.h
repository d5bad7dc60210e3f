/// How the service says that it failed.
#pragma once

#include <string>
#include <vector>

class KORVAObjectRegistryI;
class KORVASOAPFault;
class ZELMessageSet;

namespace live_call {

/// Who has to do something about it.
enum class Blame { eCaller, eService };

/// One error, and what is said about it.
struct Error {
    std::string code;
    std::vector<std::string> messages;
};

/// A fault that belongs to `registry`, with one detail. `text` is a literal, without markup; the
/// messages may be any text.
KORVASOAPFault& makeFault(KORVAObjectRegistryI& registry, Blame blame, const char* text,
                          const Error& error);

/// Tells a fault of the caller's.
/// @throws KORVASOAPFaultException always, which is what the caller will catch, too
[[noreturn]] void raiseFault(KORVAObjectRegistryI& registry, const char* text, const Error& error);

/// The messages of an exception as they are meant for people, under the number of the first.
Error errorOf(const ZELMessageSet& failure);

/// The envelope of a fault.
std::string faultEnvelope(const KORVASOAPFault& fault);

}  // namespace live_call
