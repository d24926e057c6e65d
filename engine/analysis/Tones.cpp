#include "engine/analysis/Tones.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace Analysis {

namespace {

using Colour = std::array<double, 3>;

constexpr float AlmostBlack = 0.02f;
constexpr float AlmostWhite = 0.96f;
constexpr double WidestDisagreement = 10; ///< degrees between guesses at which none is believed
constexpr double NeutralSpread = 0.12;    ///< of the channels about their mean, for a neutral colour
constexpr double EnoughNeutral = 0.3;     ///< share of neutral pixels that speaks for a light
constexpr double LargestGreenCast = 0.7;  ///< lights are bluish or reddish, hardly green or magenta

double linear(double encoded) {
    return encoded <= 0.04045 ? encoded / 12.92 : std::pow((encoded + 0.055) / 1.055, 2.4);
}

Colour normalised(const Colour &colour) {
    const double length = std::sqrt(colour[0] * colour[0] + colour[1] * colour[1] + colour[2] * colour[2]);
    if (!(length > 0))
        return {1 / std::numbers::sqrt3, 1 / std::numbers::sqrt3, 1 / std::numbers::sqrt3};
    return {colour[0] / length, colour[1] / length, colour[2] / length};
}

double degreesBetween(const Colour &a, const Colour &b) {
    const double cosine = a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
    return std::acos(std::clamp(cosine, -1.0, 1.0)) * 180 / std::numbers::pi;
}

/// Linear colours of the pixels that are neither black nor clipped.
std::vector<Colour> usableColours(const Crop &small) {
    std::vector<Colour> colours;
    for (std::size_t i = 0; i < small.luma.values.size(); ++i) {
        const float r = small.rgb[0].values[i];
        const float g = small.rgb[1].values[i];
        const float b = small.rgb[2].values[i];
        if (std::max({r, g, b}) < AlmostWhite && small.luma.values[i] > AlmostBlack)
            colours.push_back({linear(r), linear(g), linear(b)});
    }
    return colours;
}

/// Minkowski mean: 1 is the average, large powers favour the bright ones.
Colour meanOf(const std::vector<Colour> &colours, double power) {
    Colour sum = {};
    for (const Colour &colour : colours) {
        for (std::size_t c = 0; c < 3; ++c)
            sum[c] += std::pow(colour[c], power);
    }
    for (double &value : sum)
        value = std::pow(value / double(std::max<std::size_t>(1, colours.size())), 1 / power);
    return normalised(sum);
}

Colour meanOfEdges(const Crop &small) {
    Colour sum = {};
    for (int y = 0; y + 1 < small.luma.height; ++y) {
        for (int x = 0; x + 1 < small.luma.width; ++x) {
            for (std::size_t c = 0; c < 3; ++c) {
                const double here = linear(small.rgb[c].at(x, y));
                const double across = linear(small.rgb[c].at(x + 1, y)) - here;
                const double down = linear(small.rgb[c].at(x, y + 1)) - here;
                sum[c] += across * across + down * down;
            }
        }
    }
    return normalised({std::sqrt(sum[0]), std::sqrt(sum[1]), std::sqrt(sum[2])});
}

/// Share of the colours that are neutral under this light.
double neutralShare(const std::vector<Colour> &colours, const Colour &light) {
    std::size_t neutral = 0;
    for (const Colour &colour : colours) {
        const Colour seen = {colour[0] / light[0], colour[1] / light[1], colour[2] / light[2]};
        const double mean = (seen[0] + seen[1] + seen[2]) / 3;
        double spread = 0;
        for (const double value : seen)
            spread = std::max(spread, std::abs(value / mean - 1));
        neutral += spread < NeutralSpread ? 1 : 0;
    }
    return double(neutral) / double(std::max<std::size_t>(1, colours.size()));
}

} // namespace

Tones measureTones(const Crop &small) {
    Tones tones;
    std::vector<float> luma = small.luma.values;
    const auto at = [&luma](double share) {
        const auto place = luma.begin() + std::ptrdiff_t(share * double(luma.size() - 1) + 0.5);
        std::nth_element(luma.begin(), place, luma.end());
        return *place;
    };
    tones.low = at(0.005);
    tones.median = at(0.5);
    tones.high = at(0.995);
    std::size_t low = 0;
    std::size_t high = 0;
    for (std::size_t i = 0; i < luma.size(); ++i) {
        const auto [least, most] =
            std::minmax({small.rgb[0].values[i], small.rgb[1].values[i], small.rgb[2].values[i]});
        low += least <= 0.5f / 255 ? 1 : 0;
        high += most >= 254.5f / 255 ? 1 : 0;
    }
    tones.clippedLow = float(low) / float(luma.size());
    tones.clippedHigh = float(high) / float(luma.size());
    return tones;
}

Light measureLight(const Crop &small) {
    const std::vector<Colour> colours = usableColours(small);
    if (colours.empty())
        return {};
    const std::array<Colour, 3> guesses = {meanOf(colours, 1), meanOf(colours, 6), meanOfEdges(small)};
    Colour sum = {};
    for (const Colour &guess : guesses) {
        for (std::size_t c = 0; c < 3; ++c)
            sum[c] += guess[c];
    }
    const Colour light = normalised(sum);
    if (*std::min_element(light.begin(), light.end()) < 0.1)
        return {};
    double disagreement = 0;
    for (const Colour &guess : guesses)
        disagreement = std::max(disagreement, degreesBetween(guess, light));
    const double green = std::abs(std::log(light[1] * light[1] / (light[0] * light[2])));

    Light found;
    for (std::size_t c = 0; c < 3; ++c)
        found.colour[c] = float(light[c] / light[1]);
    found.confidence = float(std::clamp(1 - disagreement / WidestDisagreement, 0.0, 1.0) *
                             std::clamp(2 - 2 * green / LargestGreenCast, 0.0, 1.0) *
                             std::min(1.0, neutralShare(colours, light) / EnoughNeutral));
    return found;
}

} // namespace Analysis
