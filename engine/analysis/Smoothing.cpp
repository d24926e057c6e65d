#include "engine/analysis/Smoothing.h"

#include <algorithm>
#include <cmath>

namespace Analysis {

Plane smoothed(const Plane &plane, float sigma) {
    if (sigma <= 0)
        return plane;
    const int reach = int(std::ceil(3 * sigma));
    std::vector<float> kernel;
    float sum = 0;
    for (int i = -reach; i <= reach; ++i) {
        kernel.push_back(std::exp(-0.5f * float(i * i) / (sigma * sigma)));
        sum += kernel.back();
    }
    for (float &weight : kernel)
        weight /= sum;

    Plane across(plane.width, plane.height);
    std::vector<float> padded(std::size_t(plane.width + 2 * reach));
    for (int y = 0; y < plane.height; ++y) {
        const float *source = plane.row(y);
        std::fill_n(padded.begin(), reach, source[0]);
        std::copy_n(source, plane.width, padded.begin() + reach);
        std::fill_n(padded.end() - reach, reach, source[plane.width - 1]);
        float *target = across.row(y);
        for (std::size_t k = 0; k < kernel.size(); ++k) {
            for (int x = 0; x < plane.width; ++x)
                target[x] += kernel[k] * padded[std::size_t(x) + k];
        }
    }
    Plane result(plane.width, plane.height);
    for (int y = 0; y < plane.height; ++y) {
        float *target = result.row(y);
        for (int i = -reach; i <= reach; ++i) {
            const float *source = across.row(std::clamp(y + i, 0, plane.height - 1));
            const float weight = kernel[std::size_t(i + reach)];
            for (int x = 0; x < plane.width; ++x)
                target[x] += weight * source[x];
        }
    }
    return result;
}

Plane halved(const Plane &plane) {
    Plane half(std::max(1, plane.width / 2), std::max(1, plane.height / 2));
    for (int y = 0; y < half.height; ++y) {
        const float *upper = plane.row(2 * y);
        const float *lower = plane.row(std::min(2 * y + 1, plane.height - 1));
        for (int x = 0; x < half.width; ++x) {
            const int right = std::min(2 * x + 1, plane.width - 1);
            half.at(x, y) = 0.25f * (upper[2 * x] + upper[right] + lower[2 * x] + lower[right]);
        }
    }
    return half;
}

Crop halved(const Crop &crop) {
    Crop half;
    for (std::size_t c = 0; c < 3; ++c)
        half.rgb[c] = halved(crop.rgb[c]);
    half.luma = halved(crop.luma);
    return half;
}

} // namespace Analysis
