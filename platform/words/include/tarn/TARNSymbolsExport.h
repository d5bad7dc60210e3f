/// What marks a declaration as part of this library's interface.
#pragma once

#if defined(KORVA_STATIC)
#define TARNSYMBOLS_EXPORT
#elif defined(_WIN32)
#if defined(words_EXPORTS)
#define TARNSYMBOLS_EXPORT __declspec(dllexport)
#else
#define TARNSYMBOLS_EXPORT __declspec(dllimport)
#endif
#else
#define TARNSYMBOLS_EXPORT __attribute__((visibility("default")))
#endif
