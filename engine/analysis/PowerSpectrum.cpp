#include "engine/analysis/PowerSpectrum.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <numbers>
#include <utility>

namespace Analysis {

namespace {

constexpr int Side = PowerSpectrum::Side;
constexpr int Half = PowerSpectrum::Half;
constexpr int Step = 48; ///< blocks overlap by a quarter: the window takes that much off on either side
/// Frequencies whose power shows how much contrast a block has, in cycles per block: below them is
/// the window's own spread, above them a blur has taken its share.
constexpr int LowestContrast = 2;
constexpr int HighestContrast = 7;

using Row = std::array<float, Side>;

/// Rows of complex numbers, their parts apart so that a row is worked on at once.
struct Block {
    std::array<Row, Side> real;
    std::array<Row, Side> imaginary;
};

Row makeWindow() {
    Row window;
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
    std::array<float, Half> cosine;
    std::array<float, Half> sine;
    std::array<std::size_t, Side> order;
};

Tables makeTables() {
    Tables tables;
    for (std::size_t i = 0; i < Half; ++i) {
        tables.cosine[i] = float(std::cos(2 * std::numbers::pi * double(i) / Side));
        tables.sine[i] = float(-std::sin(2 * std::numbers::pi * double(i) / Side));
    }
    for (std::size_t i = 0; i < Side; ++i) {
        tables.order[i] = 0;
        for (std::size_t bit = 1; bit < Side; bit *= 2)
            tables.order[i] = 2 * tables.order[i] + (i & bit ? 1 : 0);
    }
    return tables;
}

/// One step for two rows: their sum, and their difference, the second turned before.
void combine(Block &block, std::size_t a, std::size_t b, float cosine, float sine) {
    Row &aReal = block.real[a], &aImaginary = block.imaginary[a];
    Row &bReal = block.real[b], &bImaginary = block.imaginary[b];
    for (std::size_t x = 0; x < Side; ++x) {
        const float real = bReal[x] * cosine - bImaginary[x] * sine;
        const float imaginary = bReal[x] * sine + bImaginary[x] * cosine;
        bReal[x] = aReal[x] - real;
        bImaginary[x] = aImaginary[x] - imaginary;
        aReal[x] += real;
        aImaginary[x] += imaginary;
    }
}

/// Fourier transform of all columns.
void transformColumns(Block &block) {
    static const Tables tables = makeTables();
    for (std::size_t i = 0; i < Side; ++i) {
        if (tables.order[i] <= i)
            continue;
        std::swap(block.real[i], block.real[tables.order[i]]);
        std::swap(block.imaginary[i], block.imaginary[tables.order[i]]);
    }
    for (std::size_t length = 2; length <= Side; length *= 2) {
        for (std::size_t start = 0; start < Side; start += length) {
            for (std::size_t k = 0; k < length / 2; ++k) {
                const std::size_t turn = k * (Side / length);
                combine(block, start + k, start + k + length / 2, tables.cosine[turn], tables.sine[turn]);
            }
        }
    }
}

void transpose(std::array<Row, Side> &rows) {
    for (std::size_t y = 0; y < Side; ++y) {
        for (std::size_t x = 0; x < y; ++x)
            std::swap(rows[y][x], rows[x][y]);
    }
}

/// The windowed part at (left, top), without its mean.
void fill(std::array<Row, Side> &rows, const Plane &plane, int left, int top) {
    static const Row window = makeWindow();
    float sum = 0;
    float weights = 0;
    for (std::size_t y = 0; y < Side; ++y) {
        const float *source = plane.row(top + int(y)) + left;
        for (std::size_t x = 0; x < Side; ++x) {
            const float weight = window[y] * window[x];
            rows[y][x] = weight;
            sum += weight * source[x];
            weights += weight;
        }
    }
    const float mean = sum / weights;
    for (std::size_t y = 0; y < Side; ++y) {
        const float *source = plane.row(top + int(y)) + left;
        for (std::size_t x = 0; x < Side; ++x)
            rows[y][x] *= source[x] - mean;
    }
}

using Power = std::vector<float>;

/// The power of the real and of the imaginary part, which are two pictures.
std::array<Power, 2> powersOf(Block &block) {
    transformColumns(block);
    transpose(block.real);
    transpose(block.imaginary);
    transformColumns(block);
    // Transposed as it is: the rows are the frequencies across.
    std::array<Power, 2> powers;
    for (Power &power : powers)
        power.resize(std::size_t(Side) * (Half + 1));
    for (std::size_t u = 0; u <= Half; ++u) {
        const std::size_t opposite = (Side - u) % Side;
        for (std::size_t v = 0; v < Side; ++v) {
            const std::size_t below = (Side - v) % Side;
            const float real = block.real[u][v], mirroredReal = block.real[opposite][below];
            const float imaginary = block.imaginary[u][v], mirrored = block.imaginary[opposite][below];
            const float evenReal = real + mirroredReal, evenImaginary = imaginary - mirrored;
            const float oddReal = real - mirroredReal, oddImaginary = imaginary + mirrored;
            powers[0][v * (Half + 1) + u] = (evenReal * evenReal + evenImaginary * evenImaginary) / 4;
            powers[1][v * (Half + 1) + u] = (oddReal * oddReal + oddImaginary * oddImaginary) / 4;
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
    auto block = std::make_unique<Block>();
    for (const Crop &tile : tiles) {
        if (stop.stop_requested())
            return {};
        bool second = false;
        for (int y = 0; y + Side <= tile.luma.height; y += Step) {
            for (int x = 0; x + Side <= tile.luma.width; x += Step) {
                fill(second ? block->imaginary : block->real, tile.luma, x, y);
                if (second) {
                    for (Power &power : powersOf(*block))
                        powers.push_back(std::move(power));
                }
                second = !second;
            }
        }
        if (second) {
            for (Row &row : block->imaginary)
                row.fill(0);
            powers.push_back(std::move(powersOf(*block)[0]));
        }
    }
    if (powers.empty())
        return {};
    PowerSpectrum spectrum;
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
