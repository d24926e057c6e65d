#pragma once

#include "engine/core/FloatTile.h"
#include "engine/inference/NetworkStore.h"

/// One network with its conditions set, over areas of a picture. Independent of how the picture is cut.
class NetworkPass {
public:
    NetworkPass(const NetworkDefinition &definition, std::shared_ptr<const Network> network,
                std::vector<float> conditions);

    int scale() const { return m_scale; }
    /// Side of a good tile, pixels of the input.
    int tileSide() const { return m_tile; }
    /// What a pixel costs, 1 for the smallest network shipped: nearly all of a file are weights, and each is
    /// used for every fourth pixel.
    double effort() const { return m_effort; }

    /// The pixels of the input that an area of the result needs.
    TRect inputArea(const TRect &output) const;

    /// `in` and `out` hold planes R, G, B; `in` covers inputArea(out[0].area). Returns an error
    /// text, mostly an empty one; unfinished once a stop is requested.
    QString run(const PlaneView *in, const PlaneView *out, Scratch &scratch,
                const std::stop_token &stop) const;

private:
    int m_scale;
    int m_halo;
    int m_tile;
    double m_effort;
    float m_share; ///< of the network's change that counts
    std::shared_ptr<const Network> m_network;
    std::vector<float> m_conditions;
};
