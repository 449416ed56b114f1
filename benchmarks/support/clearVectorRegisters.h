#pragma once

namespace Drevon::Zalento::Benchmarks {

#if defined(__x86_64__)
__attribute__((target("avx"))) inline void clearUpperHalves()
{
    __builtin_ia32_vzeroupper();
}
#endif

/**
 * Clears the upper halves of the AVX registers, where there are any. What Qt's rasteriser takes
 * for the same polyline depends on them: clearing before each call saves about a tenth of the time
 * even where nothing else runs in between. Compare with and without.
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
