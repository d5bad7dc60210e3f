/// Says which names of the library KorvaI18NRes are visible outside it.
#pragma once

#if defined(KORVA_STATIC)
#define I18N_EXPORT
#elif defined(_WIN32)
#if defined(i18n_EXPORTS)
#define I18N_EXPORT __declspec(dllexport)
#else
#define I18N_EXPORT __declspec(dllimport)
#endif
#else
#define I18N_EXPORT __attribute__((visibility("default")))
#endif
