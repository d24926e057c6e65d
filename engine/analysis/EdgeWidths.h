#pragma once

#include "engine/analysis/Planes.h"

#include <array>
#include <vector>

namespace Analysis {

/// A pixel on a ridge of the gradient.
struct Edge {
    float strength; ///< squared gradient after further smoothing, less the
                    ///< noise's share
    float before;   ///< and without the further smoothing
};

/// Edges of each tile at full size, half of it and a quarter.
constexpr std::size_t EdgeScales = 3;
using TileEdges = std::array<std::vector<std::vector<Edge>>, EdgeScales>;

/// Edges are looked for in the softer copy: where noise happens to make a
/// gradient steep in the sharper one is then no reason to choose it, and the
/// mean of the noise can be taken off. `noise` is the deviation of the plane's
/// noise.
std::vector<Edge> edgesOf(const Plane &plane, float noise);

/// How many edges can be measured at a scale.
std::size_t fewestEdges(std::size_t scale);

/// Gaussian sigma of these edges together, in pixels of their plane: of the
/// strongest ones, as weak ones are soft by nature or by compression. Each
/// alone would depend too much on the noise.
double widthOf(std::vector<Edge> edges, std::size_t fewest, float noise);

/// Edges of this width are best measured at this scale, rather than on a larger
/// copy, where there is more noise and the further smoothing changes less.
bool isWideEnough(double width, float noise);

} // namespace Analysis
