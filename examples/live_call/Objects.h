// Short ways to make what a registry owns.
#pragma once

#include <korva/KORVAObjectRegistryI.h>

#include <memory>
#include <string>
#include <utility>

namespace live_call {

/// Makes an object that lives as long as `registry`.
template <class X>
X* make(KORVAObjectRegistryI& registry) {
    auto object = std::make_unique<X>();
    registry.registerPointer(object.get());
    return object.release();
}

/// Keeps a text for as long as `registry` lives: setters store the pointer that they are given.
inline const char* keep(KORVAObjectRegistryI& registry, std::string text) {
    auto kept = std::make_unique<std::string>(std::move(text));
    registry.registerPointer(kept.get());
    return kept.release()->c_str();
}

}  // namespace live_call
