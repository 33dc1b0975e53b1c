// What a fuzz target expects beside not crashing.
#pragma once

#include <cstdio>
#include <cstdlib>

/** Ends the process when the condition does not hold, in every kind of build; libFuzzer then keeps the input. */
#define FUZZ_REQUIRE(condition)                                                                                        \
    do {                                                                                                               \
        if (!(condition)) {                                                                                            \
            std::fprintf(stderr, "%s:%d: does not hold: %s\n", __FILE__, __LINE__, #condition);                        \
            std::abort();                                                                                              \
        }                                                                                                              \
    } while (false)
