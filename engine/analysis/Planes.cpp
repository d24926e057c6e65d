#include "engine/analysis/Planes.h"

#include <algorithm>

namespace Analysis {

namespace {

Crop makeCrop(int left, int top, int width, int height) {
    Crop crop;
    crop.left = left;
    crop.top = top;
    for (Plane &plane : crop.rgb)
        plane = Plane(width, height);
    crop.luma = Plane(width, height);
    return crop;
}

void sumUp(Crop &crop) {
    for (std::size_t i = 0; i < crop.luma.values.size(); ++i) {
        crop.luma.values[i] = LumaWeights[0] * crop.rgb[0].values[i] +
                              LumaWeights[1] * crop.rgb[1].values[i] + LumaWeights[2] * crop.rgb[2].values[i];
    }
}

template <typename T>
void readRows(const ImageData &image, Crop &crop, float unit) {
    const std::size_t channels = std::size_t(image.channels());
    for (int y = 0; y < crop.luma.height; ++y) {
        const T *source = image.samples<T>(crop.top + y).data() + std::size_t(crop.left) * channels;
        for (std::size_t c = 0; c < 3; ++c) {
            float *target = crop.rgb[c].row(y);
            for (int x = 0; x < crop.luma.width; ++x)
                target[x] = float(source[std::size_t(x) * channels + c]) * unit;
        }
    }
}

template <typename T>
void readCells(const ImageData &image, Crop &small, float unit) {
    constexpr int Samples = 4;
    const std::size_t channels = std::size_t(image.channels());
    const auto edge = [](int cell, int cells, int size) { return int(std::int64_t(cell) * size / cells); };
    for (int y = 0; y < small.luma.height; ++y) {
        const int top = edge(y, small.luma.height, image.height());
        const int rows = std::max(1, edge(y + 1, small.luma.height, image.height()) - top);
        for (int x = 0; x < small.luma.width; ++x) {
            const int left = edge(x, small.luma.width, image.width());
            const int columns = std::max(1, edge(x + 1, small.luma.width, image.width()) - left);
            const int down = std::min(rows, Samples);
            const int across = std::min(columns, Samples);
            std::array<float, 3> sum = {};
            for (int j = 0; j < down; ++j) {
                const T *source = image.samples<T>(top + j * rows / down).data();
                for (int i = 0; i < across; ++i) {
                    const T *pixel = source + std::size_t(left + i * columns / across) * channels;
                    for (std::size_t c = 0; c < 3; ++c)
                        sum[c] += float(pixel[c]);
                }
            }
            for (std::size_t c = 0; c < 3; ++c)
                small.rgb[c].at(x, y) = sum[c] * unit / float(down * across);
        }
    }
}

} // namespace

Crop readCrop(const ImageData &image, const TRect &region) {
    const int left = std::clamp(region.x, 0, image.width());
    const int top = std::clamp(region.y, 0, image.height());
    const int right = std::clamp(region.x + region.width, left, image.width());
    const int bottom = std::clamp(region.y + region.height, top, image.height());
    Crop crop = makeCrop(left, top, right - left, bottom - top);
    if (image.type() == SampleType::UInt8)
        readRows<std::uint8_t>(image, crop, 1.0f / 255.0f);
    else
        readRows<std::uint16_t>(image, crop, 1.0f / 65535.0f);
    sumUp(crop);
    return crop;
}

Crop readSmall(const ImageData &image, int side) {
    const double scale = std::min(1.0, double(side) / std::max(image.width(), image.height()));
    Crop small = makeCrop(0, 0, std::max(1, int(image.width() * scale + 0.5)),
                          std::max(1, int(image.height() * scale + 0.5)));
    if (image.type() == SampleType::UInt8)
        readCells<std::uint8_t>(image, small, 1.0f / 255.0f);
    else
        readCells<std::uint16_t>(image, small, 1.0f / 65535.0f);
    sumUp(small);
    return small;
}

} // namespace Analysis
