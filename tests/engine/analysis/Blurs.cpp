#include "Scenes.h"

#include "engine/analysis/Smoothing.h"

#include <algorithm>
#include <cmath>

namespace Scenes {

Picture blurred(const Picture &picture, double sigma) {
    Picture result;
    for (std::size_t c = 0; c < 3; ++c)
        result[c] = Analysis::smoothed(picture[c], float(sigma));
    return result;
}

Picture defocused(const Picture &picture, double radius) {
    const int reach = int(std::ceil(radius));
    return painted(picture[0].width, picture[0].height, [&](int x, int y, std::size_t c) {
        const Plane &source = picture[c];
        float sum = 0;
        double weights = 0;
        for (int j = -reach; j <= reach; ++j) {
            const float *from = source.row(std::clamp(y + j, 0, source.height - 1));
            for (int i = -reach; i <= reach; ++i) {
                const auto weight = float(std::clamp(radius + 0.5 - std::hypot(i, j), 0.0, 1.0));
                weights += double(weight);
                sum += weight * from[std::clamp(x + i, 0, source.width - 1)];
            }
        }
        return sum / float(weights);
    });
}

Picture smeared(const Picture &picture, int length, double angle) {
    return painted(picture[0].width, picture[0].height, [&](int x, int y, std::size_t c) {
        const Plane &source = picture[c];
        float sum = 0;
        for (int i = 0; i < length; ++i) {
            const double step = i - (length - 1) / 2.0;
            const double fx = std::clamp(x + step * std::cos(angle), 0.0, source.width - 1.001);
            const double fy = std::clamp(y - step * std::sin(angle), 0.0, source.height - 1.001);
            const int left = int(fx);
            const int top = int(fy);
            const auto wx = float(fx - left);
            const auto wy = float(fy - top);
            sum += (1 - wy) * ((1 - wx) * source.at(left, top) + wx * source.at(left + 1, top)) +
                   wy * ((1 - wx) * source.at(left, top + 1) + wx * source.at(left + 1, top + 1));
        }
        return sum / float(length);
    });
}

} // namespace Scenes
