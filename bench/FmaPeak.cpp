#include "FmaPeak.h"

#include <algorithm>
#include <cmath>
#include <ctime>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace {

constexpr int Chains = 12; // enough to fill the latency of two units
constexpr int Rounds = 4000;

double threadSeconds() {
    timespec time;
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) + 1e-9 * double(time.tv_nsec);
}

float runOne(float start) {
    float sum[Chains];
    std::fill_n(sum, Chains, start);
    for (int i = 0; i < Rounds; ++i)
        for (float &v : sum)
            v = std::fma(v, 0.999f, start);
    return sum[0];
}

struct Width {
    float (*run)(float);
    int floats;
};

#if defined(__x86_64__)
__attribute__((target("avx512f"))) float runSixteen(float start) {
    const __m512 factor = _mm512_set1_ps(0.999f), term = _mm512_set1_ps(start);
    __m512 sum[Chains];
    for (__m512 &v : sum)
        v = term;
    for (int i = 0; i < Rounds; ++i) {
#pragma GCC unroll 12
        for (int chain = 0; chain < Chains; ++chain)
            sum[chain] = _mm512_fmadd_ps(sum[chain], factor, term);
    }
    for (const __m512 &v : sum)
        sum[0] = _mm512_add_ps(sum[0], v);
    return _mm512_cvtss_f32(sum[0]);
}

__attribute__((target("avx2,fma"))) float runEight(float start) {
    const __m256 factor = _mm256_set1_ps(0.999f), term = _mm256_set1_ps(start);
    __m256 sum[Chains];
    for (__m256 &v : sum)
        v = term;
    for (int i = 0; i < Rounds; ++i) {
#pragma GCC unroll 12
        for (int chain = 0; chain < Chains; ++chain)
            sum[chain] = _mm256_fmadd_ps(sum[chain], factor, term);
    }
    for (const __m256 &v : sum)
        sum[0] = _mm256_add_ps(sum[0], v);
    return _mm256_cvtss_f32(sum[0]);
}

Width widest() {
    if (__builtin_cpu_supports("avx512f"))
        return {runSixteen, 16};
    if (__builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma"))
        return {runEight, 8};
    return {runOne, 1};
}
#else
Width widest() {
    return {runOne, 1};
}
#endif

} // namespace

double fmaPeakPerCore() {
    const Width width = widest();
    volatile float sink = 0;
    double best = 0;
    for (int attempt = 0; attempt < 20; ++attempt) {
        const double before = threadSeconds();
        constexpr int Calls = 100;
        for (int i = 0; i < Calls; ++i)
            sink = sink + width.run(0.001f * float(i));
        best = std::max(best, double(Calls) * Rounds * Chains * width.floats / (threadSeconds() - before));
    }
    return best;
}
