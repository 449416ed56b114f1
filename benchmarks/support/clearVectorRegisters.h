#pragma once

namespace Drevon::Zalento::Benchmarks {

#if defined(__x86_64__)
__attribute__((target("avx"))) inline void clearUpperHalves()
{
    __builtin_ia32_vzeroupper();
}
#endif

/**
 * Puts the vector registers into the same state before each of two things that are compared.
 * Qt's rasteriser returns with the upper halves of the AVX registers in use; every SSE instruction
 * after that waits for them, by chance more or fewer depending on what ran in between (a tenth of
 * the time of a curve).
 */
inline void clearVectorRegisters()
{
#if defined(__x86_64__)
    if (__builtin_cpu_supports("avx")) {
        clearUpperHalves();
    }
#endif
}

} // namespace Drevon::Zalento::Benchmarks
