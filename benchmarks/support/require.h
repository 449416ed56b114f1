#pragma once

#include <cstdio>
#include <cstdlib>

namespace Drevon::Zalento::Benchmarks {

/** Ends the program when a benchmark would measure something that computes a wrong result. */
inline void require(bool correct, const char *what)
{
    if (!correct) {
        std::fprintf(stderr, "Wrong result: %s\n", what);
        std::exit(EXIT_FAILURE);
    }
}

} // namespace Drevon::Zalento::Benchmarks
