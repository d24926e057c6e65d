#include "Benches.h"
#include "Degradations.h"
#include "EngineRun.h"

#include "engine/analysis/Analyse.h"

#include <QElapsedTimer>

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cmath>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr double MedianError = 0.05, WorstError = 0.15; // of white noise
constexpr double LeastCloser = 0.95, MostTouched = 0.05;
constexpr double SecondsFor24 = 0.8;

double noiseOf(const ImageStatistics &s) {
    const double sum = s.noise[0] * s.noise[0] + s.noise[1] * s.noise[1] + s.noise[2] * s.noise[2];
    return 255 * std::sqrt(sum / 3);
}

/// One photograph after one degradation.
struct Look {
    Degraded degraded;
    ImageStatistics statistics;
    AutopilotAnswer answer;

    double error() const { return noiseOf(statistics) / degraded.noise - 1; }
    bool proposes(const QString &category) const {
        return answer.settings[category].toMap()[u"enabled"_s].toBool();
    }
    bool proposesTone() const {
        return proposes(u"Exposure Adjust"_s) || proposes(u"White Balance Adjust"_s);
    }
    bool proposesAny() const { return proposes(u"Denoise"_s) || proposes(u"Sharpen"_s) || proposesTone(); }
};

Look look(const Degradation &degradation, const Photograph &photograph, std::size_t index) {
    cv::RNG random(std::uint64_t(1000 + index));
    Look result;
    result.degraded = degradation.apply(photograph, random);
    EngineInput input;
    input.image = toImage(result.degraded.picture);
    AutopilotOptions options;
    options.preferences.upscalingType = u"none"_s;
    result.statistics = measureImage(*input.image, {});
    result.answer = analyseImage(input, result.statistics, options, {});
    return result;
}

std::vector<Look> lookAtAll(const Degradation &degradation, const std::vector<Photograph> &photographs) {
    std::vector<Look> looks(photographs.size());
    cv::parallel_for_({0, int(photographs.size())}, [&](const cv::Range &range) {
        for (auto i = std::size_t(range.start); i < std::size_t(range.end); ++i)
            looks[i] = look(degradation, photographs[i], i);
    });
    return looks;
}

double middle(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values.empty() ? 0 : values[values.size() / 2];
}

/// The recommended filters without those that change the size.
std::vector<Filter> stackOf(const AutopilotAnswer &answer) {
    std::vector<Filter> stack;
    for (const QString &category :
         {u"Exposure Adjust"_s, u"White Balance Adjust"_s, u"Denoise"_s, u"Sharpen"_s}) {
        QVariantMap entry = answer.settings[category].toMap();
        const QString model = entry.take(u"model"_s).toString();
        if (entry.take(u"enabled"_s).toBool())
            stack.push_back({category, model, entry});
    }
    return stack;
}

struct Help {
    std::size_t closer = 0;
    double gain = 0;
    double worst = 1e9;
};

/// Compared away from the border, where a blur had nothing to look at.
Help helpOf(const std::vector<Look> &looks, EngineRun &engine) {
    Help help;
    for (const Look &one : looks) {
        double gain = 0;
        if (one.proposesAny()) {
            double seconds = 0;
            const cv::Size size = one.degraded.clean.size();
            const cv::Rect part(size.width / 4, size.height / 4, size.width / 2, size.height / 2);
            const cv::Mat out = engine.run(one.degraded.picture, stackOf(one.answer), seconds, part);
            if (!out.empty())
                gain = cv::PSNR(one.degraded.clean(part), out) -
                       cv::PSNR(one.degraded.clean(part), one.degraded.picture(part));
        }
        help.closer += gain > 0 ? 1 : 0;
        help.gain += gain / double(looks.size());
        help.worst = std::min(help.worst, gain);
    }
    return help;
}

struct Totals {
    std::size_t degraded = 0;
    std::size_t closer = 0;
    int worst = 0;
};

void check(Totals &totals, bool within) {
    if (!within) {
        std::printf("   ^ OUT OF BOUNDS\n");
        totals.worst = 1;
    }
}

void printRow(const Degradation &degradation, const std::vector<Look> &looks,
              const std::vector<Photograph> &photographs, EngineRun *engine, bool each, Totals &totals) {
    std::vector<double> errors, signedErrors, blurs, truth;
    std::size_t denoise = 0, sharpen = 0, tone = 0, worstAt = 0;
    for (std::size_t i = 0; i < looks.size(); ++i) {
        const Look &one = looks[i];
        const double error = one.degraded.noise > 0 ? one.error() : noiseOf(one.statistics);
        signedErrors.push_back(error);
        errors.push_back(std::abs(error));
        if (errors[i] > errors[worstAt])
            worstAt = i;
        blurs.push_back(double(one.statistics.blur));
        truth.push_back(one.degraded.noise);
        denoise += one.proposes(u"Denoise"_s) ? 1 : 0;
        sharpen += one.proposes(u"Sharpen"_s) ? 1 : 0;
        tone += one.proposesTone() ? 1 : 0;
    }
    const double percent = 100 / double(looks.size());
    std::printf("%-26s %5.1f %6.3f %6.3f %6.3f %-14.14s %5.2f %4.0f %4.0f %4.0f", degradation.name.c_str(),
                middle(truth), middle(signedErrors), middle(errors), errors[worstAt],
                qPrintable(photographs[worstAt].name), middle(blurs), percent * double(denoise),
                percent * double(sharpen), percent * double(tone));
    if (engine) {
        const Help help = helpOf(looks, *engine);
        std::printf(" %5.0f %6.2f %6.2f", percent * double(help.closer), help.gain, help.worst);
        if (degradation.worthTreating) {
            totals.degraded += looks.size();
            totals.closer += help.closer;
        }
    }
    std::printf("\n");
    for (std::size_t i = 0; each && i < looks.size(); ++i) {
        const ImageStatistics &found = looks[i].statistics;
        std::printf(
            "    %-24.24s noise %6.2f luma %6.2f grain %4.2f  blur %5.2f edges %5.3f smear %5.1f at %4.0f\n",
            qPrintable(photographs[i].name), noiseOf(found), 255 * double(found.lumaNoise),
            double(found.grainSize), double(found.blur), double(found.edgeShare), double(found.motionLength),
            double(found.motionAngle) * 180 / CV_PI);
    }
    if (degradation.fault == Fault::WhiteNoise)
        check(totals, middle(errors) <= MedianError && errors[worstAt] <= WorstError);
    if (degradation.fault == Fault::None)
        check(totals, double(std::max(denoise, sharpen)) < MostTouched * double(looks.size()));
    std::fflush(stdout);
}

/// Share of the pairs of neighbouring blurs of one photograph that are told in the right order.
int orderOfBlurs(const std::vector<Photograph> &photographs) {
    const std::vector<double> sigmas = {0, 0.6, 1, 1.5, 2, 3, 4, 6};
    std::vector<std::vector<float>> found(photographs.size());
    cv::parallel_for_({0, int(photographs.size())}, [&](const cv::Range &range) {
        for (auto i = std::size_t(range.start); i < std::size_t(range.end); ++i) {
            for (const double sigma : sigmas) {
                cv::Mat blurred = photographs[i].clean;
                if (sigma > 0)
                    gaussianBlur(photographs[i].clean, sigma).convertTo(blurred, CV_8U);
                found[i].push_back(measureImage(*toImage(blurred), {}).blur);
            }
        }
    });
    std::size_t right = 0, all = 0;
    for (std::size_t i = 0; i < found.size(); ++i) {
        bool inOrder = true;
        for (std::size_t k = 1; k < sigmas.size(); ++k) {
            ++all;
            right += found[i][k] > found[i][k - 1] ? 1 : 0;
            inOrder = inOrder && found[i][k] > found[i][k - 1];
        }
        if (inOrder)
            continue;
        std::printf("  wrong: %-24s", qPrintable(photographs[i].name));
        for (const float value : found[i])
            std::printf(" %5.2f", double(value));
        std::printf("\n");
    }
    std::printf("blurs of 0 to 6 told in the right order: %zu of %zu pairs\n", right, all);
    return right == all ? 0 : 1;
}

int timeOfALargeOne(const Photograph &photograph) {
    cv::Mat large;
    cv::resize(photograph.larger, large, {6000, 4000}, 0, 0, cv::INTER_CUBIC);
    cv::Mat noise(large.size(), CV_8UC3);
    cv::RNG(1).fill(noise, cv::RNG::NORMAL, 20, 8);
    cv::add(large, noise, large);
    EngineInput input;
    input.image = toImage(large);
    double best = 1e9;
    for (int turn = 0; turn < 3; ++turn) {
        QElapsedTimer timer;
        timer.start();
        analyseImage(input, measureImage(*input.image, {}), {}, {});
        best = std::min(best, double(timer.nsecsElapsed()) / 1e9);
    }
    std::printf("Autopilot on 24 megapixels: %.3f s (bound %.1f)\n", best, SecondsFor24);
    return best <= SecondsFor24 ? 0 : 1;
}

} // namespace

/// Arguments: "measure" leaves out what takes the filters; "each" prints what was found in each
/// photograph; "only=TEXT" keeps to the degradations with that text in their names; anything else is
/// a photograph to use.
int benchAutopilot(const QStringList &arguments) {
    QStringList paths = arguments;
    const bool measureOnly = paths.removeAll(u"measure"_s) > 0;
    const bool each = paths.removeAll(u"each"_s) > 0;
    const QString only = paths.filter(u"only="_s).value(0).section(u'=', 1);
    paths.removeIf([](const QString &path) { return path.startsWith(u"only="_s); });
    const std::vector<Photograph> photographs =
        readPhotographs(paths.isEmpty() ? installedPhotographs() : paths, {768, 512});
    if (photographs.empty()) {
        std::fprintf(stderr, "autopilot: no photographs; name some, or install mate-backgrounds\n");
        return 2;
    }
    std::printf("%zu photographs; noise on the 8-bit scale, relative errors (clean: the noise found),\n"
                "blur in pixels, shares in percent, gains in decibels\n",
                photographs.size());
    std::printf("%-26s %5s %6s %6s %6s %-14s %5s %4s %4s %4s %5s %6s %6s\n", "", "noise", "bias", "median",
                "worst", "of", "blur", "Den", "Shp", "tone", "close", "gain", "least");
    EngineRun engine;
    Totals totals;
    for (const Degradation &degradation : degradations()) {
        if (!QString::fromStdString(degradation.name).contains(only))
            continue;
        printRow(degradation, lookAtAll(degradation, photographs), photographs,
                 measureOnly ? nullptr : &engine, each, totals);
    }
    int worst = totals.worst;
    if (totals.degraded > 0) {
        const double share = double(totals.closer) / double(totals.degraded);
        std::printf("closer to the clean original: %.1f %% of %zu\n", 100 * share, totals.degraded);
        worst = std::max(worst, share >= LeastCloser ? 0 : 1);
    }
    if (!only.isEmpty())
        return worst;
    worst = std::max(worst, orderOfBlurs(photographs));
    return std::max(worst, timeOfALargeOne(photographs.front()));
}
