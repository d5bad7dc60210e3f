/// Says which names of the library ZELIDOM are visible outside it.
#pragma once

#if defined(KORVA_STATIC)
#define ZELIDOM_EXPORT
#elif defined(_WIN32)
#if defined(zelidom_EXPORTS)
#define ZELIDOM_EXPORT __declspec(dllexport)
#else
#define ZELIDOM_EXPORT __declspec(dllimport)
#endif
#else
#define ZELIDOM_EXPORT __attribute__((visibility("default")))
#endif
