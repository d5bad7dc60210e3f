/// What marks a declaration as part of this library's interface.
#pragma once

#if defined(KORVA_STATIC)
#define TARN_EXPORT
#define TARN_LOCAL
#elif defined(_WIN32)
#if defined(tarn_EXPORTS)
#define TARN_EXPORT __declspec(dllexport)
#else
#define TARN_EXPORT __declspec(dllimport)
#endif
#define TARN_LOCAL
#else
#define TARN_EXPORT __attribute__((visibility("default")))
/// A member of an exported class that is not exported itself.
#define TARN_LOCAL __attribute__((visibility("hidden")))
#endif
