#pragma once

#include "engine/core/Region.h"

#include <cstddef>
#include <deque>
#include <memory>
#include <new>

/// A rectangle of floats somewhere in a tile; `row(y)` takes a row number of the whole picture and
/// points at the sample of column `area.x`.
struct PlaneView {
    float *data = nullptr;
    std::ptrdiff_t stride = 0;
    TRect area;

    float *row(int y) const { return data + std::ptrdiff_t(y - area.y) * stride; }
    /// Column x, row y of the whole picture.
    float *at(int x, int y) const { return row(y) + (x - area.x); }
};

/// Floats aligned for the widest vector unit; grows, never shrinks, keeps no contents on growth.
class AlignedFloats {
public:
    static constexpr std::size_t Alignment = 64;

    float *reserve(std::size_t count) {
        if (count > m_count) {
            m_data.reset(); // the old block goes before the new one comes
            m_data.reset(
                static_cast<float *>(::operator new(count * sizeof(float), std::align_val_t(Alignment))));
            m_count = count;
        }
        return m_data.get();
    }

private:
    struct Free {
        void operator()(float *p) const { ::operator delete(p, std::align_val_t(Alignment)); }
    };
    std::unique_ptr<float, Free> m_data;
    std::size_t m_count = 0;
};

/// Working memory of one thread. What was taken stays valid until clear() or the end of the
/// innermost Scope; contents are undefined.
class Scratch {
public:
    float *floats(std::size_t count) {
        if (m_used == m_blocks.size())
            m_blocks.emplace_back();
        return m_blocks[m_used++].reserve(count);
    }

    PlaneView plane(const TRect &area) {
        // Every row begins aligned, as the first one does.
        constexpr int Step = AlignedFloats::Alignment / sizeof(float);
        const std::ptrdiff_t stride = (area.width + Step - 1) / Step * Step;
        return {floats(std::size_t(stride) * std::size_t(area.height)), stride, area};
    }

    void clear() { m_used = 0; }

    class Scope {
    public:
        explicit Scope(Scratch &scratch)
            : m_scratch(scratch)
            , m_mark(scratch.m_used) {}
        ~Scope() { m_scratch.m_used = m_mark; }
        Scope(const Scope &) = delete;
        Scope &operator=(const Scope &) = delete;

    private:
        Scratch &m_scratch;
        std::size_t m_mark;
    };

private:
    std::deque<AlignedFloats> m_blocks;
    std::size_t m_used = 0;
};

/// One tile of a picture: planes R, G, B and perhaps alpha, samples from 0 to 1.
struct FloatTile {
    TRect area;
    int channels = 3;
    PlaneView planes[4];

    static FloatTile make(Scratch &scratch, const TRect &area, int channels) {
        FloatTile tile;
        tile.area = area;
        tile.channels = channels;
        for (int c = 0; c < channels; ++c)
            tile.planes[c] = scratch.plane(area);
        return tile;
    }
};
