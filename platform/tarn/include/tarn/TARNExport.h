// What marks a declaration as part of this library's interface.
#pragma once

#if defined(_WIN32)
#if defined(tarn_EXPORTS)
#define TARN_EXPORT __declspec(dllexport)
#else
#define TARN_EXPORT __declspec(dllimport)
#endif
#else
#define TARN_EXPORT __attribute__((visibility("default")))
#endif
