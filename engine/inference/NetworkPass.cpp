#include "engine/inference/NetworkPass.h"

#include "engine/kernels/Resampler.h"

#include <QFileInfo>

#include <algorithm>

namespace {

constexpr double SmallestFile = 366'000; ///< bytes
constexpr int EnlargingHalo = 3;         ///< of the cubic kernel, in pixels of the input

/// Below this largest condition a restoration fades out: a network whose conditions are 0 still
/// changes a picture a little, and a slider at its minimum must not.
constexpr float FullEffect = 0.02f;

float shareOf(const NetworkDefinition &definition, const std::vector<float> &conditions) {
    if (definition.scale > 1 || conditions.empty())
        return 1;
    return std::min(1.0f, *std::max_element(conditions.begin(), conditions.end()) / FullEffect);
}

} // namespace

NetworkPass::NetworkPass(const NetworkDefinition &definition, std::shared_ptr<const Network> network,
                         std::vector<float> conditions)
    : m_scale(definition.scale)
    , m_halo(definition.scale > 1 ? std::max(definition.halo, EnlargingHalo) : definition.halo)
    , m_tile(definition.tile)
    , m_effort(std::max(0.1, double(QFileInfo(definition.path).size()) / SmallestFile))
    , m_share(shareOf(definition, conditions))
    , m_network(std::move(network))
    , m_conditions(std::move(conditions)) {
}

/// Networks look at pixels in blocks of Alignment, so that blocks begin at the same pixels of the
/// picture whatever the area.
TRect NetworkPass::inputArea(const TRect &output) const {
    constexpr int Step = Network::Alignment;
    const auto down = [&](int edge) {
        return Step * Region::floorDivide(Region::floorDivide(edge, m_scale) - m_halo, Step);
    };
    return Region::fromEdges(down(output.x), down(output.y), -down(-Region::right(output)),
                             -down(-Region::bottom(output)));
}

QString NetworkPass::run(const PlaneView *in, const PlaneView *out, Scratch &scratch,
                         const std::stop_token &stop) const {
    const Scratch::Scope scope(scratch);
    const TRect source = inputArea(out[0].area), target = out[0].area;
    const std::size_t pixels = std::size_t(source.width) * std::size_t(source.height);
    const std::ptrdiff_t width = std::ptrdiff_t(source.width) * m_scale;
    const std::size_t plane = pixels * std::size_t(m_scale * m_scale);
    float *image = scratch.floats(3 * pixels), *result = scratch.floats(3 * plane);
    for (int c = 0; c < 3; ++c)
        for (int y = 0; y < source.height; ++y)
            std::copy_n(in[c].at(source.x, source.y + y), source.width,
                        image + std::size_t(c) * pixels + std::ptrdiff_t(y) * source.width);
    const QString error = m_network->run(image, source.width, source.height, m_conditions, result, stop);
    if (!error.isEmpty() || stop.stop_requested())
        return error;

    // What enlarges gives the difference to a cubic enlargement, which is cheaper outside of it. The
    // kernel is the one that the networks were trained with.
    const Resampler cubic(Resampler::Kernel::SharpCubic, 1, m_scale);
    const std::ptrdiff_t left = target.x - source.x * m_scale, top = target.y - source.y * m_scale;
    for (int c = 0; c < 3; ++c) {
        if (m_scale > 1)
            resample(cubic, cubic, in[c], out[c], scratch);
        for (int y = 0; y < target.height; ++y) {
            const float *from = result + std::size_t(c) * plane + (top + y) * width + left;
            float *to = out[c].row(target.y + y);
            if (m_scale > 1) {
                for (int x = 0; x < target.width; ++x)
                    to[x] += from[x];
            } else if (m_share < 1) {
                const float *before = in[c].at(target.x, target.y + y);
                for (int x = 0; x < target.width; ++x)
                    to[x] = before[x] + m_share * (from[x] - before[x]);
            } else {
                std::copy_n(from, target.width, to);
            }
        }
    }
    return {};
}
