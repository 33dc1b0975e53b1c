#pragma once

/**
 * @file
 * Marks what libZelCUtil03 shows to other modules; everything unmarked is hidden.
 * ZELCUTIL03_BUILDING is defined by the build of the library alone.
 */
#if !defined(_WIN32)
#define ZELCUTIL03_EXPORT __attribute__((visibility("default")))
#elif defined(ZELCUTIL03_BUILDING)
#define ZELCUTIL03_EXPORT __declspec(dllexport)
#else
#define ZELCUTIL03_EXPORT __declspec(dllimport)
#endif
