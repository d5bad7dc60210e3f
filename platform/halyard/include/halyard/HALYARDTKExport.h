/// Says which names of the Halyard toolkit are visible outside it.
#pragma once

#if defined(KORVA_STATIC)
#define HALYARDTK_EXPORT
#elif defined(_WIN32)
#if defined(halyard_EXPORTS)
#define HALYARDTK_EXPORT __declspec(dllexport)
#else
#define HALYARDTK_EXPORT __declspec(dllimport)
#endif
#else
#define HALYARDTK_EXPORT __attribute__((visibility("default")))
#endif
