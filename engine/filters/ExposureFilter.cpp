#include "engine/filters/ExposureFilter.h"

#include "contracts/FilterNames.h"
#include "engine/catalogue/Roles.h"

#include <cmath>

namespace {

/// Middle of a well-exposed picture, encoded brightness.
constexpr double NaturalMedian = 0.45;
/// The most that shadows are lifted, or highlights lowered, at full correction.
constexpr double MaxGain = 4;
/// Strength at which the median reaches the natural one.
constexpr double FullStrength = 0.75;

/// The tone curve is v -> g v / (1 + (g - 1) v): it keeps black and white, clips nothing, is
/// monotone, and two of them in a row multiply their gains. Half of the change goes to each channel
/// by itself and half to all three by the brightest one, between pale and garish.
class ExposureStage final : public Stage {
public:
    explicit ExposureStage(float gain)
        : m_gain(gain) {}

    QString name() const override { return Categories::Exposure; }
    TRect inputRegion(const TRect &output) const override { return output; }
    double cost() const override { return 0.3; }
    QString run(const FloatTile &in, FloatTile &out, Scratch &, const std::stop_token &) const override {
        const float more = m_gain - 1;
        for (int y = out.area.y; y < Region::bottom(out.area); ++y) {
            const float *source[] = {in.planes[0].row(y), in.planes[1].row(y), in.planes[2].row(y)};
            float *target[] = {out.planes[0].row(y), out.planes[1].row(y), out.planes[2].row(y)};
            for (int x = 0; x < out.area.width; ++x) {
                const float brightest = std::max(source[0][x], std::max(source[1][x], source[2][x]));
                const float common = 1 / (1 + more * brightest);
                for (int c = 0; c < 3; ++c) {
                    const float v = source[c][x];
                    target[c][x] = 0.5f * m_gain * v * (common + 1 / (1 + more * v));
                }
            }
        }
        return {};
    }

private:
    float m_gain;
};

} // namespace

PreparedStage makeExposureStage(const FilterInput &input) {
    const double strength = input.values.number(Roles::Strength);
    const double median = std::clamp(double(input.statistics.lumaMedian), 0.02, 0.98);
    const double full = NaturalMedian / (1 - NaturalMedian) * (1 - median) / median;
    const double gain = std::pow(std::clamp(full, 1 / MaxGain, MaxGain), strength / FullStrength);
    if (strength == 0 || std::abs(gain - 1) < 1e-6)
        return {};
    return {std::make_unique<ExposureStage>(float(gain)), {}};
}
