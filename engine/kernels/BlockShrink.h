#pragma once

#include "engine/core/FloatTile.h"

#include <algorithm>
#include <array>
#include <stop_token>

/// Takes noise away in overlapping blocks of cosine coefficients, in two passes: hard thresholds
/// on 8 x 8 blocks give a first estimate, which steers Wiener gains on 16 x 16 blocks. Works on
/// brightness and two colour differences, the orthonormal opponent axes of R, G and B.
class BlockShrink {
public:
    struct Noise {
        float sigma = 0;  ///< standard deviation of the part that is white, samples from 0 to 1
        float grain = 0;  ///< the deviation of coarse structure (3 pixels and more) is 1 + grain times that
        float blocks = 0; ///< further deviation that grows with frequency, as rounded coefficients leave it
    };
    struct Settings {
        Noise luma;
        Noise chroma;
        float deblur = 0; ///< sigma of the Gaussian blur to take back, pixels
        float detail = 0; ///< 0 to 1: how much of what was taken from textured blocks returns
        float floor = 0;  ///< deviation of the noise that the picture really has: no texture

        /// Whether less noise is assumed than rounding to 8 bit leaves.
        bool takesNothing() const {
            constexpr float Rounding = 0.3f / 255;
            return std::max({luma.sigma, luma.blocks, chroma.sigma, chroma.blocks}) < Rounding;
        }
    };

    explicit BlockShrink(const Settings &settings);

    /// Pixels of context on each side.
    static constexpr int Halo = 24;

    /// `in` and `out` hold planes R, G, B; `in` covers `area` grown by the halo, `out` the area.
    /// Unfinished when stopped. Independent of how a picture is cut into areas.
    void run(const PlaneView *in, const PlaneView *out, const TRect &area, Scratch &scratch,
             const std::stop_token &stop) const;

private:
    struct Channel {
        alignas(32) float threshold[8][8]; ///< of squared unnormalised coefficients
        alignas(32) float variance[16][16];
    };
    void runChannel(const Channel &channel, const PlaneView &in, const PlaneView &out, const TRect &area,
                    Scratch &scratch, const std::stop_token &stop) const;

    std::array<Channel, 2> m_channels; ///< brightness, colour differences
    alignas(32) float m_unit8[8][8];   ///< squared norm factors of the transform
    alignas(32) float m_unit16[16][16];
    alignas(32) float m_boost[16][16];
    float m_detail = 0;
    float m_floor = 0; ///< energy that noise gives a 16 x 16 block
};
