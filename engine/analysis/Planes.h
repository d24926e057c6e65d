#pragma once

#include "contracts/ImageData.h"

#include <array>
#include <vector>

namespace Analysis {

/// One channel of floats from 0 to 1, rows packed.
struct Plane {
    int width = 0;
    int height = 0;
    std::vector<float> values;

    Plane() = default;
    Plane(int w, int h)
        : width(w)
        , height(h)
        , values(std::size_t(w) * std::size_t(h)) {}
    float *row(int y) { return values.data() + std::size_t(y) * std::size_t(width); }
    const float *row(int y) const { return values.data() + std::size_t(y) * std::size_t(width); }
    float &at(int x, int y) { return row(y)[x]; }
    float at(int x, int y) const { return row(y)[x]; }
    bool isEmpty() const { return values.empty(); }
};

/// R, G, B and their weighted sum of equal size.
struct Crop {
    int left = 0;
    int top = 0;
    std::array<Plane, 3> rgb;
    Plane luma;
};

constexpr std::array<float, 3> LumaWeights = {0.299f, 0.587f, 0.114f};

/// The part of the region that lies in the image, at full resolution.
Crop readCrop(const ImageData &image, const TRect &region);

/// The whole image with its longest side at most `side`; every pixel is the mean of up to 4 x 4
/// samples spread over its cell.
Crop readSmall(const ImageData &image, int side);

} // namespace Analysis
