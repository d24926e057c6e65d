#pragma once

/// Vectors of eight floats in the compiler's own notation, and kernels built twice: for any
/// machine of the architecture and for AVX2, chosen at run time. Fused multiply-add stays off in
/// both, so that they give the same bits.
namespace Simd {

using Floats = float __attribute__((vector_size(32), aligned(32)));
using Loose = float __attribute__((vector_size(32), aligned(4))); ///< at any address
using Bits = int __attribute__((vector_size(32)));

constexpr int Width = 8;

#if defined(__x86_64__) || defined(__i386__)
inline bool hasAvx2() {
    static const bool has = __builtin_cpu_supports("avx2");
    return has;
}
#define ORVANE_TARGET_AVX2 __attribute__((target("avx2")))
#else
inline bool hasAvx2() {
    return false;
}
#define ORVANE_TARGET_AVX2
#endif

#define ORVANE_INLINE inline __attribute__((always_inline))

} // namespace Simd

/// Defines `name(const Args &)` that runs the always-inline `name##Body(const Args &)` in the
/// best build.
#define ORVANE_KERNEL(name, Args)                                                                            \
    ORVANE_TARGET_AVX2 void name##Avx2(const Args &args) {                                                   \
        name##Body(args);                                                                                    \
    }                                                                                                        \
    void name##Plain(const Args &args) {                                                                     \
        name##Body(args);                                                                                    \
    }                                                                                                        \
    void name(const Args &args) {                                                                            \
        Simd::hasAvx2() ? name##Avx2(args) : name##Plain(args);                                              \
    }
