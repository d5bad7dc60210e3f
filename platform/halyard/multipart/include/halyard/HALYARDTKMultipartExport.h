/// Says which names of the multipart library are visible outside it.
#pragma once

#if defined(KORVA_STATIC)
#define HALYARDTK_MULTIPART_EXPORT
#elif defined(_WIN32)
#if defined(halyard_multipart_EXPORTS)
#define HALYARDTK_MULTIPART_EXPORT __declspec(dllexport)
#else
#define HALYARDTK_MULTIPART_EXPORT __declspec(dllimport)
#endif
#else
#define HALYARDTK_MULTIPART_EXPORT __attribute__((visibility("default")))
#endif
