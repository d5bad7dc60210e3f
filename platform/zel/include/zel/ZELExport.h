/// Says which names of the library ZELCore are visible outside it.
#pragma once

#if defined(KORVA_STATIC)
#define ZEL_EXPORT
#elif defined(_WIN32)
#if defined(zel_EXPORTS)
#define ZEL_EXPORT __declspec(dllexport)
#else
#define ZEL_EXPORT __declspec(dllimport)
#endif
#else
#define ZEL_EXPORT __attribute__((visibility("default")))
#endif
