#include "AutopilotLook.h"
#include "Benches.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

constexpr double MedianError = 0.05, WorstError = 0.15; // of white noise
constexpr double LeastCloser = 0.95, MostTouched = 0.05;

double middle(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values.empty() ? 0 : values[values.size() / 2];
}

std::vector<Photograph> halfOf(const std::vector<Photograph> &all, std::size_t first) {
    std::vector<Photograph> half;
    for (std::size_t i = first; i < all.size(); i += 2)
        half.push_back(all[i]);
    return half;
}

struct Options {
    bool measureOnly = false;
    bool each = false;
    QString only;
    QString half;
};

/// Over the degradations that are worth treating.
struct Totals {
    std::size_t degraded = 0;
    std::size_t closer = 0;
    double gain = 0;
    int worst = 0;

    double share() const { return double(closer) / double(degraded); }
};

void check(Totals &totals, bool within) {
    if (!within) {
        std::printf(" OUT OF BOUNDS");
        totals.worst = 1;
    }
}

void printOne(const Photograph &photograph, const Look &look, double gain) {
    const ImageStatistics &found = look.statistics;
    std::printf(
        "    %-20.20s noise %5.2f luma %5.2f grain %4.2f  blur %4.2f soft %4.2f edges %5.3f disc %3.1f "
        "smear %4.1f at %3.0f  gain %5.2f",
        qPrintable(photograph.name), look.noise(), 255 * double(found.lumaNoise), double(found.grainSize),
        double(found.blur), double(found.softness), double(found.edgeShare), double(found.defocusRadius),
        double(found.motionLength), double(found.motionAngle) * 180 / CV_PI, gain);
    for (const Filter &filter : look.stack())
        std::printf(" %s:%s %.2f", qPrintable(filter.category.left(3)), qPrintable(filter.model.right(9)),
                    filter.params.value(u"param2"_s).toDouble());
    std::printf("\n");
}

void printMeasured(const Degradation &degradation, const std::vector<Look> &looks,
                   const std::vector<Photograph> &photographs, Totals &totals) {
    std::vector<double> errors, signedErrors, blurs, truth;
    std::size_t denoise = 0, sharpen = 0, tone = 0, worstAt = 0;
    for (std::size_t i = 0; i < looks.size(); ++i) {
        const Look &one = looks[i];
        signedErrors.push_back(one.degraded.noise > 0 ? one.error() : one.noise());
        errors.push_back(std::abs(signedErrors.back()));
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
    if (degradation.fault == Fault::WhiteNoise)
        check(totals, middle(errors) <= MedianError && errors[worstAt] <= WorstError);
    if (degradation.fault == Fault::None)
        check(totals, double(std::max(denoise, sharpen)) < MostTouched * double(looks.size()));
}

std::vector<double> printGains(const Degradation &degradation, const std::vector<Look> &looks,
                               EngineRun &engine, Totals &totals) {
    std::vector<double> gains;
    for (const Look &look : looks)
        gains.push_back(gainOf(look, engine));
    const auto closer =
        std::size_t(std::count_if(gains.begin(), gains.end(), [](double gain) { return gain > 0; }));
    const double sum = std::accumulate(gains.begin(), gains.end(), 0.0);
    std::printf(" %5.0f %6.2f %6.2f", 100 * double(closer) / double(looks.size()), sum / double(looks.size()),
                *std::min_element(gains.begin(), gains.end()));
    if (degradation.worthTreating) {
        totals.degraded += looks.size();
        totals.closer += closer;
        totals.gain += sum;
    }
    return gains;
}

void printRow(const Degradation &degradation, const std::vector<Photograph> &photographs, EngineRun &engine,
              const Options &options, Totals &totals) {
    const std::vector<Look> looks = measureAll(degradation, photographs);
    printMeasured(degradation, looks, photographs, totals);
    std::vector<double> gains(looks.size());
    if (!options.measureOnly)
        gains = printGains(degradation, looks, engine, totals);
    std::printf("\n");
    for (std::size_t i = 0; options.each && i < looks.size(); ++i)
        printOne(photographs[i], looks[i], gains[i]);
    std::fflush(stdout);
}

} // namespace

/// Arguments: "measure" leaves out what takes the filters; "each" prints what was found in each
/// photograph; "only=TEXT" keeps to the degradations with that text in their names; "half=even" or "half=odd"
/// to every other photograph, so that what was chosen on one half is judged on the other; anything else
/// is a photograph to use.
int benchAutopilot(const QStringList &arguments) {
    Options options;
    QStringList paths;
    for (const QString &argument : arguments) {
        if (argument == u"measure"_s)
            options.measureOnly = true;
        else if (argument == u"each"_s)
            options.each = true;
        else if (argument.startsWith(u"only="_s))
            options.only = argument.section(u'=', 1);
        else if (argument.startsWith(u"half="_s))
            options.half = argument.section(u'=', 1);
        else
            paths.append(argument);
    }
    std::vector<Photograph> photographs =
        readPhotographs(paths.isEmpty() ? installedPhotographs() : paths, {768, 512});
    if (!options.half.isEmpty())
        photographs = halfOf(photographs, options.half == u"odd"_s ? 1 : 0);
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
        if (QString::fromStdString(degradation.name).contains(options.only))
            printRow(degradation, photographs, engine, options, totals);
    }
    int worst = totals.worst;
    if (totals.degraded > 0) {
        std::printf("closer to the clean original: %.1f %% of %zu; gain %.2f dB\n", 100 * totals.share(),
                    totals.degraded, totals.gain / double(totals.degraded));
        worst = std::max(worst, totals.share() >= LeastCloser ? 0 : 1);
    }
    if (!options.only.isEmpty())
        return worst;
    worst = std::max({worst, orderOfBlurs(photographs), mostDrawingLike(photographs)});
    return std::max(worst, timeLargePicture(photographs.front()));
}
