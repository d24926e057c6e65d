#include "engine/analysis/BlurShape.h"

#include "engine/analysis/BlurFit.h"

#include <cmath>
#include <initializer_list>
#include <numbers>

namespace Analysis {

namespace {

constexpr double Pi = std::numbers::pi;
constexpr double LargestSigma = 5, SmallestSigma = 0.3;
constexpr double SmallestRadius = 1.2, LargestRadius = 8.5;
constexpr double SmallestLength = 3, LargestLength = 24;
constexpr int Directions = 12;

// A kind is believed when it explains the spectrum better than a Gaussian does, by a share of the error
// and by an amount: photographs that were not smeared or out of focus stay above 0.94 and 0.98, those
// that were are below 0.8, and for a lens below 0.98 unless they had hardly any fine detail before.
constexpr double LineShare = 0.87, DiscShare = 0.96;
constexpr double LineGain = 0.012, DiscGain = 0.003;
/// A Gaussian is when a disc explains it this much worse.
constexpr double NoDiscShare = 1.25;
/// A disc has more to fit a smear with than a line has to fit a disc: it may be this much better.
constexpr double NearlyEqual = 1.1;
/// Larger ones explain little and fit anything that falls fast.
constexpr double LongestLine = 20, LargestDisc = 8;
/// Below, kernels of all kinds look alike.
constexpr double SmallestTold = 0.7;
/// Noise of the luma beyond which it hides all but the coarsest detail.
constexpr float MostNoise = 12.0f / 255;

struct Found {
    BlurKernel kernel;
    double error = 1e30;
};

class Search {
public:
    Search(const BlurFit &fit, std::stop_token stop)
        : m_fit(fit)
        , m_stop(std::move(stop)) {}

    void tryOut(const BlurKernel &kernel, Found &best, bool quick = false) const {
        if (m_stop.stop_requested())
            return;
        const double error = m_fit.errorOf(kernel, quick);
        if (error < best.error)
            best = {kernel, error};
    }

    /// Sizes around the best one so far, nearer and nearer.
    void refine(Found &best, std::initializer_list<double> steps) const {
        for (const double step : steps) {
            const BlurKernel centre = best.kernel;
            for (const double size : {centre.size / step, centre.size * step})
                tryOut({centre.kind, size, centre.angle}, best);
        }
    }

    Found gaussian() const {
        Found rough;
        tryOut({BlurKernel::Kind::Gaussian, 0, 0}, rough, true);
        for (double size = SmallestSigma; size <= LargestSigma; size *= 1.3)
            tryOut({BlurKernel::Kind::Gaussian, size, 0}, rough, true);
        Found best;
        tryOut(rough.kernel, best);
        if (best.kernel.size > 0)
            refine(best, {1.14, 1.07, 1.035});
        return best;
    }

    Found disc() const {
        Found rough;
        for (double size = SmallestRadius; size <= LargestRadius; size *= 1.12)
            tryOut({BlurKernel::Kind::Disc, size, 0}, rough, true);
        Found best;
        tryOut(rough.kernel, best);
        refine(best, {1.06, 1.03});
        return best;
    }

    Found line() const {
        Found rough;
        for (int i = 0; i < Directions; ++i) {
            for (double size = SmallestLength; size <= LargestLength; size *= 1.18)
                tryOut({BlurKernel::Kind::Line, size, i * Pi / Directions}, rough, true);
        }
        Found best;
        tryOut(rough.kernel, best);
        for (const double turn : {Pi / Directions / 2, Pi / Directions / 4}) {
            const BlurKernel centre = best.kernel;
            for (const double angle : {centre.angle - turn, centre.angle + turn})
                tryOut({centre.kind, centre.size, angle}, best);
            refine(best, {1.09, 1.04});
        }
        best.kernel.angle -= Pi * std::floor(best.kernel.angle / Pi);
        return best;
    }

private:
    const BlurFit &m_fit;
    std::stop_token m_stop;
};

} // namespace

BlurShape findBlurShape(const std::vector<Crop> &tiles, float noise, std::stop_token stop) {
    if (noise > MostNoise)
        return {};
    const PowerSpectrum spectrum = measureSpectrum(tiles, stop);
    if (spectrum.power.empty())
        return {};
    const BlurFit fit(spectrum, double(noise));
    const Search search(fit, stop);
    const Found gaussian = search.gaussian();
    const Found disc = search.disc();
    const Found line = search.line();
    if (stop.stop_requested())
        return {};
    BlurShape shape;
    shape.sigma = float(gaussian.kernel.size);
    const auto beats = [&gaussian](const Found &other, double share, double gain) {
        return other.error < share * gaussian.error && other.error < gaussian.error - gain;
    };
    const bool directed = beats(line, LineShare, LineGain);
    if (directed && line.kernel.size <= LongestLine && line.error < NearlyEqual * disc.error) {
        shape.kind = BlurKind::Motion;
        shape.length = float(line.kernel.size);
        shape.angle = float(line.kernel.angle);
    } else if (!directed && disc.kernel.size <= LargestDisc && beats(disc, DiscShare, DiscGain)) {
        shape.kind = BlurKind::Defocus;
        shape.radius = float(disc.kernel.size);
    } else if (gaussian.kernel.size >= SmallestTold && disc.error > NoDiscShare * gaussian.error) {
        shape.kind = BlurKind::Soft;
    }
    return shape;
}

} // namespace Analysis
