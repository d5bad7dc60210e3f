/// What stands in the place of an object that a checking registry freed.
#pragma once

#include <korva/KORVASchemaTypeI.h>
#include <zel/ZELFileLocation.h>

#include <cstddef>
#include <map>
#include <string>

namespace korva {

/// One registration with a checking registry.
struct Registration {
    std::string type;       ///< "KORVASchedule"
    std::size_t number;     ///< from 1
    ZELFileLocation place;  ///< that was marked before it; without a name if none was
    const void* registry;   ///< with which it stands

    /// "number 3, behind Orders.cpp(12)".
    std::string toString() const;
};

/// By the address of what is registered. A map, whose entries move to another without memory.
using Registrations = std::map<const void*, Registration>;

/// Ends the life of `object`, and has its memory refuse to be used: whatever is asked of it through
/// KORVASchemaTypeI is KORVAException 0xEA4F0034. Its entry moves out of `registrations`, where it
/// must be.
void bury(KORVASchemaTypeI& object, Registrations& registrations) noexcept;

/// Gives back the memory of all objects of `registry` that were buried.
void freeBuried(const void* registry) noexcept;

}  // namespace korva
