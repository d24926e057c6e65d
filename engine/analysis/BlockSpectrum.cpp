#include "engine/analysis/BlockSpectrum.h"

#include <cmath>
#include <numbers>

namespace Analysis {

namespace {

using Basis = std::array<std::array<float, 8>, 8>;

Basis makeBasis() {
    Basis basis;
    for (std::size_t k = 0; k < 8; ++k) {
        for (std::size_t n = 0; n < 8; ++n) {
            const double scale = k == 0 ? std::sqrt(1.0 / 8) : std::sqrt(2.0 / 8);
            basis[k][n] = float(scale * std::cos(std::numbers::pi * (2.0 * double(n) + 1) * double(k) / 16));
        }
    }
    return basis;
}

std::array<float, 3> bandsOf(const std::array<float, 64> &coefficients) {
    std::array<float, 3> sum = {};
    for (std::size_t v = 0; v < 8; ++v) {
        for (std::size_t u = 0; u < 8; ++u) {
            const std::size_t order = u + v;
            const float square = coefficients[v * 8 + u] * coefficients[v * 8 + u];
            if (order >= 8)
                sum[2] += square;
            else if (order >= 3 && order <= 5)
                sum[1] += square;
            else if (order >= 1 && order <= 2)
                sum[0] += square;
        }
    }
    for (std::size_t b = 0; b < 3; ++b)
        sum[b] /= float(BlockSpectrum::Counts[b]);
    return sum;
}

} // namespace

void cosineTransform(const float *source, int stride, std::array<float, 64> &target) {
    static const Basis basis = makeBasis();
    std::array<float, 64> half;
    for (std::size_t y = 0; y < 8; ++y) {
        const float *row = source + std::ptrdiff_t(y) * stride;
        for (std::size_t k = 0; k < 8; ++k) {
            float sum = 0;
            for (std::size_t n = 0; n < 8; ++n)
                sum += basis[k][n] * row[n];
            half[y * 8 + k] = sum;
        }
    }
    for (std::size_t k = 0; k < 8; ++k) {
        std::array<float, 8> sum = {};
        for (std::size_t n = 0; n < 8; ++n) {
            for (std::size_t u = 0; u < 8; ++u)
                sum[u] += basis[k][n] * half[n * 8 + u];
        }
        for (std::size_t u = 0; u < 8; ++u)
            target[k * 8 + u] = sum[u];
    }
}

void appendSpectra(const Crop &crop, std::vector<BlockSpectrum> &blocks) {
    std::array<std::array<float, 64>, 6> coefficients;
    for (int y = 0; y + 8 <= crop.luma.height; y += 8) {
        for (int x = 0; x + 8 <= crop.luma.width; x += 8) {
            for (std::size_t c = 0; c < 3; ++c)
                cosineTransform(crop.rgb[c].row(y) + x, crop.rgb[c].width, coefficients[c]);
            for (std::size_t i = 0; i < 64; ++i) {
                const float luma = LumaWeights[0] * coefficients[0][i] + LumaWeights[1] * coefficients[1][i] +
                                   LumaWeights[2] * coefficients[2][i];
                coefficients[3][i] = luma;
                coefficients[4][i] = coefficients[0][i] - luma;
                coefficients[5][i] = coefficients[2][i] - luma;
            }
            BlockSpectrum block;
            for (std::size_t c = 0; c < 6; ++c)
                block.band[c] = bandsOf(coefficients[c]);
            for (std::size_t c = 0; c < 4; ++c)
                block.mean[c] = coefficients[c][0] / 8;
            blocks.push_back(block);
        }
    }
}

} // namespace Analysis
