#include "engine/kernels/BlockPass.h"

#include "engine/kernels/Dct.h"

#include <cstring>

namespace {

using Simd::Floats;
using Simd::Loose;

/// Where the blocks of a pass stand and the rows under way, one ring of N rows for each quantity.
template <int N, int S>
struct Rows {
    int firstX, firstY; ///< first block, multiples of S
    int columns, lines; ///< number of blocks
    float *noisy;
    float *guide;
    float *sums;
    float *weights; ///< of each block, a ring of N / S lines
    float *pixels;  ///< one row of output

    float *weightsOf(int line) const { return weights + std::size_t(line % (N / S)) * std::size_t(columns); }
};

struct RowArgs {
    const float *in;
    float *out;
    int columns;
};

template <int N, int S>
ORVANE_INLINE void forwardRow(const float *in, float *out, int columns) {
    constexpr int V = N / Simd::Width;
    for (int b = 0; b < columns; ++b, in += S, out += N) {
        Floats sum[V] = {};
        for (int i = 0; i < N; ++i)
            for (int j = 0; j < V; ++j)
                sum[j] += in[i] * *reinterpret_cast<const Floats *>(Dct::basis<N>.of[i] + 8 * j);
        for (int j = 0; j < V; ++j)
            *reinterpret_cast<Floats *>(out + 8 * j) = sum[j];
    }
}

/// Transforms the sums of one row back, adds them up over the blocks and clears them.
template <int N, int S>
ORVANE_INLINE void backwardRow(float *sums, float *pixels, int columns) {
    constexpr int V = N / Simd::Width;
    std::memset(pixels, 0, sizeof(float) * std::size_t((columns - 1) * S + N));
    for (int b = 0; b < columns; ++b, sums += N, pixels += S) {
        Floats value[V];
        for (int j = 0; j < V; ++j)
            value[j] = *reinterpret_cast<Loose *>(pixels + 8 * j);
        for (int k = 0; k < N; ++k)
            for (int j = 0; j < V; ++j)
                value[j] += sums[k] * *reinterpret_cast<const Floats *>(Dct::basis<N>.transposed[k] + 8 * j);
        for (int j = 0; j < V; ++j) {
            *reinterpret_cast<Loose *>(pixels + 8 * j) = value[j];
            *reinterpret_cast<Floats *>(sums + 8 * j) = Floats{};
        }
    }
}

template <int N>
ORVANE_INLINE void loadColumns(const float *ring, std::size_t length, int line, int offset, Floats *x) {
    for (int i = 0; i < N; ++i)
        x[i] = *reinterpret_cast<const Floats *>(ring + length * std::size_t((line + i) % N) + offset);
    Dct::forward<N>(x);
}

template <int N>
ORVANE_INLINE void addColumns(float *ring, std::size_t length, int line, int offset, float weight,
                              Floats *x) {
    Dct::transposed<N>(x);
    for (int i = 0; i < N; ++i)
        *reinterpret_cast<Floats *>(ring + length * std::size_t((line + i) % N) + offset) += x[i] * weight;
}

ORVANE_INLINE float total(const Floats &v) {
    return ((v[0] + v[4]) + (v[1] + v[5])) + ((v[2] + v[6]) + (v[3] + v[7]));
}

ORVANE_INLINE const Floats &table(const float *row) {
    return *reinterpret_cast<const Floats *>(row);
}

struct Args8 {
    const BlockPass::Shrink8 *shrink;
    Rows<8, 2> rows;
    int line;
    float *weights;
};

ORVANE_INLINE void shrinkLine8Body(const Args8 &args) {
    const std::size_t length = std::size_t(args.rows.columns) * 8;
    const Floats one = Floats{} + 1.0f;
    for (int b = 0; b < args.rows.columns; ++b) {
        Floats x[8], kept = {};
        loadColumns<8>(args.rows.noisy, length, args.line, b * 8, x);
        for (int i = 0; i < 8; ++i) {
            const Simd::Bits mask = x[i] * x[i] >= table(args.shrink->threshold[i]);
            kept += (Floats)((Simd::Bits)one & mask);
            x[i] = (Floats)((Simd::Bits)(x[i] * table(args.shrink->unit[i])) & mask);
        }
        const float weight = 1.0f / total(kept);
        args.weights[b] = weight;
        addColumns<8>(args.rows.sums, length, args.line, b * 8, weight, x);
    }
}

struct Args16 {
    const BlockPass::Shrink16 *shrink;
    Rows<16, 4> rows;
    int line;
    float *weights;
};

ORVANE_INLINE void shrinkLine16Body(const Args16 &args) {
    const std::size_t length = std::size_t(args.rows.columns) * 16;
    const BlockPass::Shrink16 &shrink = *args.shrink;
    for (int b = 0; b < args.rows.columns; ++b) {
        Floats x[2][16], gain[2][16], energy = {}, spread = {};
        for (int j = 0; j < 2; ++j) {
            loadColumns<16>(args.rows.guide, length, args.line, b * 16 + 8 * j, gain[j]);
            loadColumns<16>(args.rows.noisy, length, args.line, b * 16 + 8 * j, x[j]);
            for (int i = 0; i < 16; ++i) {
                const Floats square = gain[j][i] * gain[j][i];
                gain[j][i] = square / (square + table(shrink.variance[i] + 8 * j));
                Floats noisy = x[j][i] * x[j][i] * table(shrink.unit[i] + 8 * j);
                if (i == 0 && j == 0) {
                    gain[0][0][0] = 1; // the mean stays
                    noisy[0] = 0;
                }
                energy += noisy;
                spread += gain[j][i] * gain[j][i];
            }
        }
        const float weight = 1.0f / total(spread);
        const float whole = total(energy) + 1e-12f;
        const float lift = shrink.detail * (std::max(0.0f, whole - shrink.floor) / whole);
        for (int j = 0; j < 2; ++j) {
            for (int i = 0; i < 16; ++i) {
                const Floats lifted = gain[j][i] + lift * (1.0f - gain[j][i]);
                x[j][i] *= lifted * table(shrink.boost[i] + 8 * j) * table(shrink.unit[i] + 8 * j);
            }
            addColumns<16>(args.rows.sums, length, args.line, b * 16 + 8 * j, weight, x[j]);
        }
        args.weights[b] = weight;
    }
}

ORVANE_INLINE void forward8Body(const RowArgs &args) {
    forwardRow<8, 2>(args.in, args.out, args.columns);
}
ORVANE_INLINE void forward16Body(const RowArgs &args) {
    forwardRow<16, 4>(args.in, args.out, args.columns);
}
struct BackArgs {
    float *sums;
    float *pixels;
    int columns;
};
ORVANE_INLINE void backward8Body(const BackArgs &args) {
    backwardRow<8, 2>(args.sums, args.pixels, args.columns);
}
ORVANE_INLINE void backward16Body(const BackArgs &args) {
    backwardRow<16, 4>(args.sums, args.pixels, args.columns);
}

ORVANE_KERNEL(forward8, RowArgs)
ORVANE_KERNEL(forward16, RowArgs)
ORVANE_KERNEL(backward8, BackArgs)
ORVANE_KERNEL(backward16, BackArgs)
ORVANE_KERNEL(shrinkLine8, Args8)
ORVANE_KERNEL(shrinkLine16, Args16)

template <int N, int S>
Rows<N, S> makeRows(const TRect &area, bool guided, Scratch &scratch) {
    const auto first = [](int from) { return Region::floorDivide(from - N + S, S) * S; };
    const auto count = [](int from, int to) { return Region::floorDivide(to - 1 - from, S) + 1; };
    Rows<N, S> rows;
    rows.firstX = first(area.x);
    rows.firstY = first(area.y);
    rows.columns = count(rows.firstX, Region::right(area));
    rows.lines = count(rows.firstY, Region::bottom(area));
    const std::size_t ring = std::size_t(rows.columns) * N * N;
    rows.noisy = scratch.floats(ring);
    rows.guide = guided ? scratch.floats(ring) : nullptr;
    rows.sums = scratch.floats(ring);
    std::memset(rows.sums, 0, ring * sizeof(float));
    rows.weights = scratch.floats(std::size_t(rows.columns) * (N / S));
    rows.pixels = scratch.floats(std::size_t(rows.columns + N / S) * S);
    return rows;
}

/// Divides a finished row by the weights of the blocks over each pixel, which are the same for the
/// S pixels of a cell, and writes the part that lies in the output.
template <int N, int S>
void writeRow(const Rows<N, S> &rows, int line, int y, const PlaneView &out) {
    constexpr int Blocks = N / S;
    float *target = out.row(y);
    const TRect &area = out.area;
    for (int cell = Blocks - 1; cell < rows.columns; ++cell) {
        float weight = 0;
        for (int l = line - Blocks + 1; l <= line; ++l)
            for (int b = cell - Blocks + 1; b <= cell; ++b)
                weight += rows.weightsOf(l)[b];
        const float factor = 1.0f / weight;
        const int x = rows.firstX + cell * S;
        for (int i = std::max(0, area.x - x); i < std::min(S, Region::right(area) - x); ++i)
            target[x + i - area.x] = rows.pixels[cell * S + i] * factor;
    }
}

template <int N, int S, typename Forward, typename Backward, typename ShrinkLine>
void runPass(const PlaneView &in, const PlaneView *guide, const PlaneView &out, Scratch &scratch,
             const std::stop_token &stop, Forward forward, Backward backward, ShrinkLine shrinkLine) {
    const Scratch::Scope scope(scratch);
    const Rows<N, S> rows = makeRows<N, S>(out.area, guide != nullptr, scratch);
    const std::size_t length = std::size_t(rows.columns) * N;
    int loaded = 0;
    for (int line = 0; line < rows.lines && !stop.stop_requested(); ++line) {
        for (; loaded < line * S + N; ++loaded) {
            const int y = rows.firstY + loaded;
            const std::size_t slot = length * std::size_t(loaded % N);
            forward({in.at(rows.firstX, y), rows.noisy + slot, rows.columns});
            if (guide)
                forward({guide->at(rows.firstX, y), rows.guide + slot, rows.columns});
        }
        shrinkLine(rows, line);
        for (int i = line * S; i < line * S + S; ++i) {
            const int y = rows.firstY + i;
            backward({rows.sums + length * std::size_t(i % N), rows.pixels, rows.columns});
            if (y >= out.area.y && y < Region::bottom(out.area))
                writeRow<N, S>(rows, line, y, out);
        }
    }
}

} // namespace

void BlockPass::run8(const Shrink8 &shrink, const PlaneView &in, const PlaneView &out, Scratch &scratch,
                     const std::stop_token &stop) {
    runPass<8, 2>(in, nullptr, out, scratch, stop, forward8, backward8,
                  [&](const Rows<8, 2> &rows, int line) {
                      shrinkLine8({&shrink, rows, line * 2, rows.weightsOf(line)});
                  });
}

void BlockPass::run16(const Shrink16 &shrink, const PlaneView &in, const PlaneView &estimate,
                      const PlaneView &out, Scratch &scratch, const std::stop_token &stop) {
    runPass<16, 4>(in, &estimate, out, scratch, stop, forward16, backward16,
                   [&](const Rows<16, 4> &rows, int line) {
                       shrinkLine16({&shrink, rows, line * 4, rows.weightsOf(line)});
                   });
}
