/// Says which names of the library BrimStreams are visible outside it.
#pragma once

#if defined(KORVA_STATIC)
#define BRIM_EXPORT
#elif defined(_WIN32)
#if defined(brim_EXPORTS)
#define BRIM_EXPORT __declspec(dllexport)
#else
#define BRIM_EXPORT __declspec(dllimport)
#endif
#else
#define BRIM_EXPORT __attribute__((visibility("default")))
#endif
