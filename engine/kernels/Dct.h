#pragma once

#include "engine/kernels/Simd.h"

#include <array>
#include <cmath>
#include <numbers>

/// The discrete cosine transform of length N (a power of two), unnormalised, of eight columns at
/// once: B. G. Lee's recursive factorisation. The normalisation goes into the shrinkage tables.
namespace Dct {

template <int N>
std::array<float, N / 2> halfSecants() {
    std::array<float, N / 2> table;
    for (int i = 0; i < N / 2; ++i)
        table[std::size_t(i)] = float(0.5 / std::cos((2 * i + 1) * std::numbers::pi / (2 * N)));
    return table;
}
template <int N>
inline const std::array<float, N / 2> secants = halfSecants<N>();

/// X[k] = sum over i of x[i] cos(pi (i + 1/2) k / N)
template <int N>
ORVANE_INLINE void forward(Simd::Floats *x) {
    if constexpr (N > 1) {
        constexpr int H = N / 2;
        Simd::Floats a[H], b[H];
        for (int i = 0; i < H; ++i) {
            a[i] = x[i] + x[N - 1 - i];
            b[i] = (x[i] - x[N - 1 - i]) * secants<N>[std::size_t(i)];
        }
        forward<H>(a);
        forward<H>(b);
        for (int i = 0; i + 1 < H; ++i) {
            x[2 * i] = a[i];
            x[2 * i + 1] = b[i] + b[i + 1];
        }
        x[N - 2] = a[H - 1];
        x[N - 1] = b[H - 1];
    }
}

/// x[i] = sum over k of X[k] cos(pi (i + 1/2) k / N), the transpose of forward()
template <int N>
ORVANE_INLINE void transposed(Simd::Floats *x) {
    if constexpr (N > 1) {
        constexpr int H = N / 2;
        Simd::Floats a[H], b[H];
        a[0] = x[0];
        b[0] = x[1];
        for (int i = 1; i < H; ++i) {
            a[i] = x[2 * i];
            b[i] = x[2 * i - 1] + x[2 * i + 1];
        }
        transposed<H>(a);
        transposed<H>(b);
        for (int i = 0; i < H; ++i) {
            const Simd::Floats t = b[i] * secants<N>[std::size_t(i)];
            x[i] = a[i] + t;
            x[N - 1 - i] = a[i] - t;
        }
    }
}

/// cosines[i][k] = cos(pi (i + 1/2) k / N), or with both indices exchanged
template <int N>
struct Basis {
    alignas(32) float of[N][N];
    alignas(32) float transposed[N][N];
    Basis() {
        for (int i = 0; i < N; ++i)
            for (int k = 0; k < N; ++k)
                transposed[k][i] = of[i][k] = float(std::cos(std::numbers::pi * (i + 0.5) * k / N));
    }
};
template <int N>
inline const Basis<N> basis;

} // namespace Dct
