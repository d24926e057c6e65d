#include "engine/analysis/Blur.h"

#include "engine/analysis/EdgeWidths.h"
#include "engine/analysis/Smoothing.h"

#include <algorithm>
#include <optional>

namespace Analysis {

namespace {

/// The sharpest part of a picture, as a share of its edges.
constexpr double SharpestShare = 0.1;

struct TileWidth {
    double width;  ///< pixels at full size
    double weight; ///< edges at full size: a sharp subject counts more than blur around it
};

/// From the smallest copy up to the first one on which the edges are wide; where none is, the largest
/// that has edges counts. Nothing where there are none.
std::optional<TileWidth> widthOfTile(const TileEdges &edges, std::size_t tile, float noise) {
    std::optional<TileWidth> found;
    for (std::size_t k = EdgeScales; k-- > 0;) {
        const std::vector<Edge> &here = edges[k][tile];
        if (here.size() < fewestEdges(k))
            continue;
        const float left = noise / float(1 << k);
        const double width = widthOf(here, fewestEdges(k), left);
        found = TileWidth{width * (1 << k), 1};
        if (isWideEnough(width, left))
            break;
    }
    for (std::size_t k = 0; found && k < EdgeScales; ++k)
        found->weight = std::max(found->weight, double(edges[k][tile].size()) / double(1 << (2 * k)));
    return found;
}

float sharpestOf(std::vector<TileWidth> tiles) {
    std::sort(tiles.begin(), tiles.end(),
              [](const TileWidth &a, const TileWidth &b) { return a.width < b.width; });
    double all = 0;
    for (const TileWidth &tile : tiles)
        all += tile.weight;
    double sum = 0;
    for (const TileWidth &tile : tiles) {
        sum += tile.weight;
        if (sum >= SharpestShare * all)
            return float(tile.width);
    }
    return 0;
}

/// On the copy where most is found: wide edges are many on a small copy only.
float edgeShareOf(const TileEdges &edges, const std::array<std::size_t, EdgeScales> &pixels) {
    double most = 0;
    for (std::size_t k = 0; k < EdgeScales; ++k) {
        std::size_t count = 0;
        for (const std::vector<Edge> &tile : edges[k])
            count += tile.size();
        most = std::max(most, double(count) / double(std::max<std::size_t>(1, pixels[k])));
    }
    return float(most);
}

} // namespace

BlurLevels measureBlur(const std::vector<Crop> &tiles, float noise, std::stop_token stop) {
    TileEdges edges;
    std::array<std::size_t, EdgeScales> pixels = {};
    std::vector<TileWidth> widths;
    for (std::size_t i = 0; i < tiles.size(); ++i) {
        Plane plane = tiles[i].luma;
        for (std::size_t k = 0; k < EdgeScales; ++k) {
            if (stop.stop_requested())
                return {};
            if (k > 0)
                plane = halved(plane);
            pixels[k] += plane.values.size();
            edges[k].push_back(edgesOf(plane, noise / float(1 << k)));
        }
        if (const std::optional<TileWidth> width = widthOfTile(edges, i, noise))
            widths.push_back(*width);
    }
    BlurLevels levels;
    levels.sigma = sharpestOf(std::move(widths));
    levels.edgeShare = edgeShareOf(edges, pixels);
    return levels;
}

} // namespace Analysis
