/// What marks a declaration as part of the library's interface, and the version of the contract
/// between the core and the generated code.
#pragma once

#if defined(KORVA_STATIC)
#define KORVA_EXPORT
#define KORVA_LOCAL
#elif defined(_WIN32)
#if defined(KorvaObjModel_EXPORTS)
#define KORVA_EXPORT __declspec(dllexport)
#else
#define KORVA_EXPORT __declspec(dllimport)
#endif
#define KORVA_LOCAL
#else
#define KORVA_EXPORT __attribute__((visibility("default")))
/// A member of an exported class that is not exported itself.
#define KORVA_LOCAL __attribute__((visibility("hidden")))
#endif

/// The contract between the core and what korva-schemac writes; each generated file checks it.
#define KORVA_CORE_VERSION 1
