#pragma once

#include "Degradations.h"
#include "EngineRun.h"

#include "engine/analysis/Analyse.h"

/// One photograph after one degradation: what Autopilot measures and recommends.
struct Look {
    Degraded degraded;
    ImageStatistics statistics;
    AutopilotAnswer answer;

    double noise() const; ///< root mean square over the channels, 8-bit scale
    double error() const { return noise() / degraded.noise - 1; }
    bool proposes(const QString &category) const;
    bool proposesTone() const;
    /// The recommended filters without those that change the size.
    std::vector<Filter> stack() const;
};

std::vector<Look> measureAll(const Degradation &degradation, const std::vector<Photograph> &photographs);

/// How many decibels nearer to the clean original the recommended filters bring the picture, away from
/// the border, where a blur had nothing to look at; 0 where there are none.
double gainOf(const Look &look, EngineRun &engine);

/// Whether neighbouring blurs of one photograph are measured in the right order; 1 where one isn't.
int orderOfBlurs(const std::vector<Photograph> &photographs);

/// Whether none of the photographs would be mistaken for a drawing; 1 where one would.
int mostDrawingLike(const std::vector<Photograph> &photographs);

/// What a look at 24 megapixels takes; 1 where it takes too long.
int timeLargePicture(const Photograph &photograph);
