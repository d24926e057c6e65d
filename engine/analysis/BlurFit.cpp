#include "engine/analysis/BlurFit.h"

#include <algorithm>
#include <cmath>

namespace Analysis {

namespace {

constexpr double Lowest = 0.04; ///< below, what the window spreads of the mean
constexpr double Highest = 0.5;
constexpr double HighestQuick = 0.32;
constexpr double LowestPower = 1e-14;
/// Share of the frequencies that hold hardly anything but noise, whatever the picture.
constexpr double NoiseShare = 0.05;
/// Deviation that rounding to 8 bits leaves in the luma.
constexpr double Rounding = 0.19 / 255;
constexpr double Reference = 0.1; ///< frequency at which the fall begins to count, and below which is
                                  ///< little blur and no noise
constexpr int Turns = 3, QuickTurns = 2;
constexpr double LargestStep = 3;
/// What spectra of photographs have: level, fall, and how both change with the direction, and how
/// much they differ from one photograph to another (D. Tolhurst and others, "Amplitude spectra of
/// natural images", 1992; the fall of power is twice that of amplitude).
constexpr std::array<double, 8> Usual = {0, -2.2, 0, 0, 0, 0, 0, 0};
constexpr std::array<double, 8> Spread = {100, 0.4, 0.7, 0.7, 0.5, 0.5, 0.3, 0.3};
constexpr double UsualWeight = 0.02;

/// Solves the symmetric positive definite system in place; the answer takes the right side's place.
template <std::size_t N>
void solve(std::array<std::array<double, N>, N> &matrix, std::array<double, N> &right) {
    for (std::size_t q = 0; q < N; ++q) {
        for (std::size_t r = q + 1; r < N; ++r) {
            const double factor = matrix[q][r] / matrix[q][q];
            for (std::size_t p = r; p < N; ++p)
                matrix[r][p] -= factor * matrix[q][p];
            right[r] -= factor * right[q];
        }
    }
    for (std::size_t q = N; q-- > 0;) {
        for (std::size_t p = q + 1; p < N; ++p)
            right[q] -= matrix[q][p] * right[p];
        right[q] /= matrix[q][q];
    }
}

} // namespace

BlurFit::BlurFit(const PowerSpectrum &spectrum, double noise) {
    constexpr int Side = PowerSpectrum::Side;
    std::vector<double> powers;
    for (int v = -PowerSpectrum::Half; v < PowerSpectrum::Half; ++v) {
        for (int u = 0; u <= PowerSpectrum::Half; ++u) {
            const double power = std::max(LowestPower, double(spectrum.at(u, (v + Side) % Side)));
            powers.push_back(power);
            const double x = double(u) / Side;
            const double y = double(v) / Side;
            const double frequency = std::hypot(x, y);
            const bool twice = v < 0 && (u == 0 || u == PowerSpectrum::Half);
            if (frequency < Lowest || frequency > Highest || twice)
                continue;
            const double angle = std::atan2(-y, x);
            const double fall = std::log(frequency / Reference);
            const double c = std::cos(2 * angle);
            const double s = std::sin(2 * angle);
            m_bins.push_back({x,
                              y,
                              std::log(power),
                              1 / frequency,
                              {1, fall, c, s, c * c - s * s, 2 * c * s, fall * c, fall * s}});
        }
    }
    std::stable_sort(m_bins.begin(), m_bins.end(),
                     [](const Bin &a, const Bin &b) { return a.weight > b.weight; });
    const auto low = powers.begin() + std::ptrdiff_t(NoiseShare * double(powers.size()));
    std::nth_element(powers.begin(), low, powers.end());
    m_noise = std::min(std::max(noise * noise, Rounding * Rounding), *low);
    m_quick = std::size_t(std::count_if(m_bins.begin(), m_bins.end(),
                                        [](const Bin &bin) { return bin.weight >= 1 / HighestQuick; }));
}

/// From the frequencies at which a blur leaves most.
BlurFit::Terms8 BlurFit::guess(const std::vector<double> &shares) const {
    double sum = 0;
    int count = 0;
    for (std::size_t i = 0; i < shares.size() && m_bins[i].weight > 1 / Reference; ++i) {
        const double power = std::max(0.0, std::exp(m_bins[i].level) - m_noise);
        sum += power / std::max(shares[i], 1e-3) * std::exp(-Usual[1] * m_bins[i].terms[1]);
        ++count;
    }
    Terms8 scene = Usual;
    scene[0] = std::log(std::max(sum / std::max(1, count), LowestPower));
    return scene;
}

/// The error of this scene seen through the kernel, and the step to a better one.
double BlurFit::evaluate(const Terms8 &scene, const std::vector<double> &shares, Terms8 *step) const {
    std::array<Terms8, Terms> matrix = {};
    Terms8 right = {};
    double error = 0;
    double weights = 0;
    for (std::size_t i = 0; i < shares.size(); ++i) {
        const Bin &bin = m_bins[i];
        double level = 0;
        for (std::size_t q = 0; q < Terms; ++q)
            level += scene[q] * bin.terms[q];
        const double signal = std::exp(std::min(level, 20.0)) * shares[i];
        const double power = std::max(signal + m_noise, LowestPower);
        const double rest = bin.level - std::log(power);
        const double far = std::max(1.0, std::abs(rest));
        error += bin.weight * (far > 1 ? 2 * far - 1 : rest * rest);
        weights += bin.weight;
        if (!step)
            continue;
        const double share = signal / power;
        const double weight = bin.weight / far * share;
        for (std::size_t q = 0; q < Terms; ++q) {
            const double one = bin.terms[q] * weight;
            for (std::size_t p = q; p < Terms; ++p)
                matrix[q][p] += one * share * bin.terms[p];
            right[q] += one * rest;
        }
    }
    error /= weights;
    for (std::size_t q = 0; q < Terms; ++q) {
        const double precision = UsualWeight / (Spread[q] * Spread[q]);
        error += precision * (scene[q] - Usual[q]) * (scene[q] - Usual[q]);
        matrix[q][q] += weights * precision;
        right[q] -= weights * precision * (scene[q] - Usual[q]);
    }
    if (step) {
        solve(matrix, right);
        *step = right;
    }
    return error;
}

double BlurFit::errorOf(const BlurKernel &kernel, bool quick) const {
    const BlurProfile profile(kernel);
    std::vector<double> shares(quick ? m_quick : m_bins.size());
    for (std::size_t i = 0; i < shares.size(); ++i)
        shares[i] = profile.at(kernel.along(m_bins[i].x, m_bins[i].y));
    Terms8 scene = guess(shares);
    for (int turn = quick ? QuickTurns : Turns; turn > 0; --turn) {
        Terms8 step;
        evaluate(scene, shares, &step);
        for (std::size_t q = 0; q < Terms; ++q)
            scene[q] += std::clamp(step[q], -LargestStep, LargestStep);
    }
    return evaluate(scene, shares, nullptr);
}

} // namespace Analysis
