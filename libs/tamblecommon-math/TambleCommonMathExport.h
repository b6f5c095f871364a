#pragma once

#if defined(_WIN32)
#if defined(TAMBLE_COMMON_MATH_BUILD)
#define TAMBLE_COMMON_MATH_EXPORT __declspec(dllexport)
#else
#define TAMBLE_COMMON_MATH_EXPORT __declspec(dllimport)
#endif
#else
#define TAMBLE_COMMON_MATH_EXPORT __attribute__((visibility("default")))
#endif
