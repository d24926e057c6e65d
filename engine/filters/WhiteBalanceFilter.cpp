#include "engine/filters/WhiteBalanceFilter.h"

#include "contracts/FilterNames.h"
#include "engine/catalogue/Roles.h"

#include <cmath>

namespace {

/// Linear gain of red, and its inverse for blue, at the warm end of the slider.
constexpr double WarmestGain = 1.5;
/// Exponent that turns a gain on linear light into one on encoded values.
constexpr double Encoding = 1 / 2.2;
constexpr float Knee = 0.8f; ///< raised channels bend towards white from here

/// Linear gain that makes light of this colour neutral: the whole way where the colour is sure, a
/// cautious part of it where it is a guess.
double neutralGain(double light, double confidence) {
    constexpr double CautiousGain = 1.2, MaxGain = 4;
    const double trust = 0.5 + 0.5 * std::clamp(confidence, 0.0, 1.0);
    const double limit = CautiousGain + (MaxGain - CautiousGain) * std::clamp(confidence, 0.0, 1.0);
    return std::clamp(std::pow(1 / std::max(0.05, light), trust), 1 / limit, limit);
}

/// A channel gain on encoded values. Raised channels reach white smoothly instead of clipping.
struct ChannelGain {
    float gain = 1;
    float start = 1; ///< input where the bend begins
    float steep = 1; ///< slope there, with the bend's box scaled to 1

    ChannelGain() = default;
    explicit ChannelGain(float g)
        : gain(g) {
        if (g > 1) {
            start = Knee / g;
            steep = g * (1 - start) / (1 - Knee);
        }
    }
    float operator()(float v) const {
        if (v <= start)
            return v * gain;
        const float u = (v - start) / (1 - start);
        return Knee + (1 - Knee) * steep * u / (1 + (steep - 1) * u);
    }
};

class WhiteBalanceStage final : public Stage {
public:
    WhiteBalanceStage(const std::array<double, 3> &gains, float opacity)
        : m_opacity(opacity) {
        for (std::size_t c = 0; c < 3; ++c)
            m_gains[c] = ChannelGain(float(gains[c]));
    }

    QString name() const override { return Categories::WhiteBalance; }
    TRect inputRegion(const TRect &output) const override { return output; }
    double cost() const override { return 0.3; }
    QString run(const FloatTile &in, FloatTile &out, Scratch &, const std::stop_token &) const override {
        for (int y = out.area.y; y < Region::bottom(out.area); ++y) {
            const float *source[] = {in.planes[0].row(y), in.planes[1].row(y), in.planes[2].row(y)};
            for (int x = 0; x < out.area.width; ++x) {
                // Blown highlights have no colour of the light left in them: they stay white.
                const float darkest = std::min(source[0][x], std::min(source[1][x], source[2][x]));
                const float white = std::clamp((darkest - 0.9f) / 0.1f, 0.0f, 1.0f);
                const float amount = m_opacity * (1 - white * white * (3 - 2 * white));
                for (std::size_t c = 0; c < 3; ++c) {
                    const float v = source[c][x];
                    out.planes[c].row(y)[x] = v + amount * (m_gains[c](v) - v);
                }
            }
        }
        return {};
    }

private:
    std::array<ChannelGain, 3> m_gains;
    float m_opacity;
};

} // namespace

PreparedStage makeWhiteBalanceStage(const FilterInput &input) {
    const double opacity = input.values.number(Roles::Opacity);
    const double warmth = 2 * input.values.number(Roles::Temperature) - 1;
    if (opacity <= 0)
        return {};
    const auto &light = input.statistics.illuminant;
    const double shift = std::pow(WarmestGain, warmth);
    std::array<double, 3> gains = {shift, 1, 1 / shift};
    for (std::size_t c = 0; c < 3; ++c)
        gains[c] *= neutralGain(double(light[c]), double(input.statistics.castConfidence));
    const double brightness = 0.2126 * gains[0] + 0.7152 * gains[1] + 0.0722 * gains[2];
    for (double &gain : gains)
        gain = std::pow(gain / brightness, Encoding);
    return {std::make_unique<WhiteBalanceStage>(gains, float(opacity)), {}};
}
