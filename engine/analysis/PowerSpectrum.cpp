#include "engine/analysis/PowerSpectrum.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>

namespace Analysis {

namespace {

constexpr int Side = PowerSpectrum::Side;
constexpr int Half = PowerSpectrum::Half;
constexpr int Step = 48; ///< blocks overlap by a quarter: the window takes that much off on either side
/// Frequencies whose power tells how much contrast a block has, in cycles per block: below them is
/// the window's own spread, above them a blur has taken its share.
constexpr int LowestContrast = 2;
constexpr int HighestContrast = 7;

using Complex = std::complex<float>;
using Block = std::array<Complex, std::size_t(Side) * Side>;

std::array<float, Side> makeWindow() {
    std::array<float, Side> window;
    float squares = 0;
    for (std::size_t i = 0; i < Side; ++i) {
        window[i] = float(0.5 - 0.5 * std::cos(2 * std::numbers::pi * (double(i) + 0.5) / Side));
        squares += window[i] * window[i];
    }
    for (float &value : window)
        value /= std::sqrt(squares);
    return window;
}

struct Tables {
    std::array<Complex, Half> turns;
    std::array<std::size_t, Side> order;
};

Tables makeTables() {
    Tables tables;
    for (std::size_t i = 0; i < Half; ++i)
        tables.turns[i] = std::polar(1.0f, float(-2 * std::numbers::pi * double(i) / Side));
    for (std::size_t i = 0; i < Side; ++i) {
        tables.order[i] = 0;
        for (std::size_t bit = 1; bit < Side; bit *= 2)
            tables.order[i] = 2 * tables.order[i] + (i & bit ? 1 : 0);
    }
    return tables;
}

/// Fourier transform of Side values that lie `stride` apart.
void transform(Complex *values, std::size_t stride) {
    static const Tables tables = makeTables();
    std::array<Complex, Side> work;
    for (std::size_t i = 0; i < Side; ++i)
        work[tables.order[i]] = values[i * stride];
    for (std::size_t length = 2; length <= Side; length *= 2) {
        const std::size_t half = length / 2;
        for (std::size_t start = 0; start < Side; start += length) {
            for (std::size_t k = 0; k < half; ++k) {
                const Complex turn = tables.turns[k * (Side / length)];
                const Complex odd = work[start + k + half];
                const Complex turned(odd.real() * turn.real() - odd.imag() * turn.imag(),
                                     odd.real() * turn.imag() + odd.imag() * turn.real());
                work[start + k + half] = work[start + k] - turned;
                work[start + k] += turned;
            }
        }
    }
    for (std::size_t i = 0; i < Side; ++i)
        values[i * stride] = work[i];
}

/// The windowed block at (left, top), without its mean, as the real or the imaginary part.
void fill(Block &block, const Plane &plane, int left, int top, bool imaginary) {
    static const std::array<float, Side> window = makeWindow();
    float sum = 0;
    float weights = 0;
    for (int y = 0; y < Side; ++y) {
        const float *row = plane.row(top + y) + left;
        for (int x = 0; x < Side; ++x) {
            const float weight = window[std::size_t(y)] * window[std::size_t(x)];
            sum += weight * row[x];
            weights += weight;
        }
    }
    const float mean = sum / weights;
    for (int y = 0; y < Side; ++y) {
        const float *row = plane.row(top + y) + left;
        for (int x = 0; x < Side; ++x) {
            const float value = window[std::size_t(y)] * window[std::size_t(x)] * (row[x] - mean);
            Complex &target = block[std::size_t(y * Side + x)];
            target = imaginary ? Complex(target.real(), value) : Complex(value, 0);
        }
    }
}

using Power = std::vector<float>;

/// The power of the real and of the imaginary part of what was transformed.
std::array<Power, 2> powersOf(Block &block) {
    for (std::size_t y = 0; y < Side; ++y)
        transform(&block[y * Side], 1);
    for (std::size_t x = 0; x < Side; ++x)
        transform(&block[x], Side);
    std::array<Power, 2> powers;
    for (Power &power : powers)
        power.resize(std::size_t(Side) * (Half + 1));
    for (std::size_t v = 0; v < Side; ++v) {
        for (std::size_t u = 0; u <= Half; ++u) {
            const Complex here = block[v * Side + u];
            const Complex mirrored = std::conj(block[(Side - v) % Side * Side + (Side - u) % Side]);
            powers[0][v * (Half + 1) + u] = std::norm(here + mirrored) / 4;
            powers[1][v * (Half + 1) + u] = std::norm(here - mirrored) / 4;
        }
    }
    return powers;
}

double contrastOf(const Power &power) {
    double sum = 0;
    int count = 0;
    for (int v = -HighestContrast; v <= HighestContrast; ++v) {
        for (int u = 0; u <= HighestContrast; ++u) {
            const int square = u * u + v * v;
            if (square <= LowestContrast * LowestContrast || square > HighestContrast * HighestContrast)
                continue;
            sum += double(power[std::size_t(((v + Side) % Side) * (Half + 1) + u)]);
            ++count;
        }
    }
    return sum / count;
}

} // namespace

PowerSpectrum measureSpectrum(const std::vector<Crop> &tiles, std::stop_token stop) {
    std::vector<Power> powers;
    Block block;
    for (const Crop &tile : tiles) {
        if (stop.stop_requested())
            return {};
        bool second = false;
        for (int y = 0; y + Side <= tile.luma.height; y += Step) {
            for (int x = 0; x + Side <= tile.luma.width; x += Step) {
                fill(block, tile.luma, x, y, second);
                if (second) {
                    for (Power &power : powersOf(block))
                        powers.push_back(std::move(power));
                }
                second = !second;
            }
        }
        if (second)
            powers.push_back(std::move(powersOf(block)[0]));
    }
    PowerSpectrum spectrum;
    if (powers.empty())
        return spectrum;
    std::vector<double> contrasts;
    for (const Power &power : powers)
        contrasts.push_back(contrastOf(power));
    std::vector<double> sorted = contrasts;
    const auto middle = sorted.begin() + std::ptrdiff_t(sorted.size() / 2);
    std::nth_element(sorted.begin(), middle, sorted.end());
    const double usual = std::max(*middle, 1e-9);
    spectrum.power.assign(powers.front().size(), 0);
    double weights = 0;
    for (std::size_t i = 0; i < powers.size(); ++i) {
        const double weight = usual / (contrasts[i] + usual);
        weights += weight;
        for (std::size_t k = 0; k < spectrum.power.size(); ++k)
            spectrum.power[k] += float(weight) * powers[i][k];
    }
    for (float &value : spectrum.power)
        value /= float(weights);
    return spectrum;
}

} // namespace Analysis
