/// The parameters of any message as a range, and paths that start at a message:
///
///     korva::set(*request, "parameterValues/0/name", "region", *request->getObjectRegistry());
///     const std::string name = korva::get(*request, "parameterValues/0/name").asText().value();
///
/// KORVA_Path.h says what a path is, and what fails.
#pragma once

#include <korva/KORVAMessageI.h>
#include <korva/KORVA_Children.h>
#include <korva/KORVA_Path.h>

#include <optional>
#include <vector>

class KORVA_EXPORT KORVA_MessageAccess {
public:
    KORVA_MessageAccess() = delete;

    /// The parameters as they are now, set or not, in their order.
    /// @throws ZELOutOfMemoryError no memory is left
    static KORVA_Children children(const KORVAMessageI& message);

    /// @throws KORVAException as KORVA_Path::get; 0xEA4F0031 as well for the path without steps
    /// @throws ZELAssertError, ZELOutOfMemoryError as KORVA_Path::get
    static KORVA_Child get(const KORVAMessageI& message, const KORVA_Path& path);
    /// @throws KORVAException as get; ZELAssertError, ZELOutOfMemoryError as KORVA_Path::find
    static std::optional<KORVA_Child> find(const KORVAMessageI& message, const KORVA_Path& path);
    /// @throws KORVAException as get; ZELAssertError, ZELOutOfMemoryError as KORVA_Path::findAll
    static std::vector<KORVA_PathMatch> findAll(const KORVAMessageI& message,
                                                const KORVA_Path& path);
    /// @throws KORVAException, ZELAssertError, ZELOutOfMemoryError as KORVA_Path::set
    static void set(KORVAMessageI& message, const KORVA_Path& path, const KORVA_PathValue& value,
                    KORVAObjectRegistryI& registry);
};

namespace korva {

/// @throws ZELOutOfMemoryError no memory is left
inline KORVA_Children children(const KORVAMessageI& message) {
    return KORVA_MessageAccess::children(message);
}

/// @throws KORVAException, ZELAssertError, ZELOutOfMemoryError as KORVA_MessageAccess::get
inline KORVA_Child get(const KORVAMessageI& message, const KORVA_Path& path) {
    return KORVA_MessageAccess::get(message, path);
}

/// @throws KORVAException, ZELAssertError, ZELOutOfMemoryError as KORVA_MessageAccess::find
inline std::optional<KORVA_Child> find(const KORVAMessageI& message, const KORVA_Path& path) {
    return KORVA_MessageAccess::find(message, path);
}

/// @throws KORVAException, ZELAssertError, ZELOutOfMemoryError as KORVA_MessageAccess::findAll
inline std::vector<KORVA_PathMatch> findAll(const KORVAMessageI& message, const KORVA_Path& path) {
    return KORVA_MessageAccess::findAll(message, path);
}

/// @throws KORVAException, ZELAssertError, ZELOutOfMemoryError as KORVA_MessageAccess::set
inline void set(KORVAMessageI& message, const KORVA_Path& path, const KORVA_PathValue& value,
                KORVAObjectRegistryI& registry) {
    KORVA_MessageAccess::set(message, path, value, registry);
}

/// The same, with the registry that the message has.
/// @throws KORVAException, ZELAssertError, ZELOutOfMemoryError as KORVA_MessageAccess::set
inline void set(KORVAMessageI& message, const KORVA_Path& path, const KORVA_PathValue& value) {
    KORVA_MessageAccess::set(message, path, value, *message.getObjectRegistry());
}

}  // namespace korva
