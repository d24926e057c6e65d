#include "engine/analysis/Sampling.h"

#include <algorithm>
#include <cmath>

namespace Analysis {

namespace {

constexpr int SpreadSide = 64;
constexpr int SpreadCount = 320;
constexpr int GridOffset = 4;
constexpr int BusySide = 160;
constexpr int BusyCount = 28;
constexpr int RowStep = 16;

struct Candidate {
    int x = 0;
    int y = 0;
    float score = 0;
};

/// How strong the strongest edges of a cell are: the 95th percentile of the change of green over
/// four pixels, far enough apart that blurred edges count too and noise counts little.
template <typename T>
float edgeScore(const ImageData &image, const TRect &cell, float unit) {
    constexpr int Reach = 4;
    const int channels = image.channels();
    std::vector<float> changes;
    for (int y = cell.y; y + Reach < cell.y + cell.height; y += RowStep) {
        const T *row = image.samples<T>(y).data();
        const T *below = image.samples<T>(y + Reach).data();
        for (int x = cell.x; x + Reach < cell.x + cell.width; x += 2) {
            const float here = float(row[x * channels + 1]);
            const float across = float(row[(x + Reach) * channels + 1]) - here;
            const float down = float(below[x * channels + 1]) - here;
            changes.push_back(std::max(std::abs(across), std::abs(down)));
        }
    }
    if (changes.empty())
        return 0;
    const auto high = changes.begin() + std::ptrdiff_t(changes.size() * 95 / 100);
    std::nth_element(changes.begin(), high, changes.end());
    return *high * unit;
}

float edgeScore(const ImageData &image, const TRect &cell) {
    return image.type() == SampleType::UInt8 ? edgeScore<std::uint8_t>(image, cell, 1.0f / 255.0f)
                                             : edgeScore<std::uint16_t>(image, cell, 1.0f / 65535.0f);
}

} // namespace

std::vector<Crop> spreadTiles(const ImageData &image, std::stop_token stop) {
    const int width = image.width();
    const int height = image.height();
    const int offset = std::min(width, height) >= SpreadSide ? GridOffset : 0;
    const int across = std::max(1, (width - offset + SpreadSide - 1) / SpreadSide);
    const int down = std::max(1, (height - offset + SpreadSide - 1) / SpreadSide);
    const double thin = std::max(1.0, std::sqrt(double(across) * down / SpreadCount));
    const int columns = std::max(1, int(across / thin));
    const int rows = std::max(1, int(down / thin));
    std::vector<Crop> tiles;
    for (int j = 0; j < rows; ++j) {
        for (int i = 0; i < columns; ++i) {
            if (stop.stop_requested())
                return {};
            const int x = int((i + 0.5) * across / columns) * SpreadSide + offset;
            const int y = int((j + 0.5) * down / rows) * SpreadSide + offset;
            tiles.push_back(readCrop(image, {x, y, SpreadSide, SpreadSide}));
        }
    }
    return tiles;
}

std::vector<Crop> busyTiles(const ImageData &image, std::stop_token stop) {
    std::vector<Candidate> candidates;
    const int side = std::min({BusySide, image.width(), image.height()});
    for (int y = 0; y + side <= image.height(); y += side) {
        if (stop.stop_requested())
            return {};
        for (int x = 0; x + side <= image.width(); x += side)
            candidates.push_back({x, y, edgeScore(image, {x, y, side, side})});
    }
    std::stable_sort(candidates.begin(), candidates.end(),
                     [](const Candidate &a, const Candidate &b) { return a.score > b.score; });
    candidates.resize(std::min<std::size_t>(candidates.size(), BusyCount));
    std::vector<Crop> tiles;
    for (const Candidate &candidate : candidates)
        tiles.push_back(readCrop(image, {candidate.x, candidate.y, side, side}));
    return tiles;
}

} // namespace Analysis
