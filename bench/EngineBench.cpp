#include "Benches.h"
#include "EngineRun.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <opencv2/core.hpp>
#include <opencv2/imgcodecs.hpp>
#include <opencv2/imgproc.hpp>
#include <opencv2/photo.hpp>

#include <cstdio>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr double Deviation = 25; // of the noise, on the 8-bit scale
constexpr double LeastGain = 2;  // decibels beyond the reference
constexpr double MemoryLimit = 1.2e9;

cv::Mat noisy(const cv::Mat &clean) {
    cv::Mat noise(clean.size(), CV_32FC3), sum;
    cv::RNG random(7);
    random.fill(noise, cv::RNG::NORMAL, 0, Deviation);
    clean.convertTo(sum, CV_32F);
    sum += noise;
    cv::Mat out;
    sum.convertTo(out, CV_8U);
    return out;
}

/// Photographs at half size, where nothing of their own noise and compression is left, cut to one size.
std::vector<cv::Mat> photographs(QStringList paths) {
    if (paths.isEmpty()) {
        const QDir folder(u"/usr/share/backgrounds/mate/nature"_s);
        for (const QString &name : folder.entryList({u"*.jpg"_s}, QDir::Files, QDir::Name))
            paths.append(folder.filePath(name));
    }
    std::vector<cv::Mat> photographs;
    for (const QString &path : std::as_const(paths)) {
        cv::Mat mat = cv::imread(QFile::encodeName(path).toStdString());
        if (mat.empty() || mat.cols < 1280 || mat.rows < 960)
            continue;
        cv::resize(mat, mat, {}, 0.5, 0.5, cv::INTER_AREA);
        photographs.push_back(mat(cv::Rect(mat.cols / 2 - 320, mat.rows / 2 - 240, 640, 480)).clone());
    }
    return photographs;
}

int row(const char *what, double value, const char *unit, double reference, double over, const char *bound,
        bool within) {
    std::printf("%-40s %8.3f %-5s %8.3f %8.3f %s %s\n", what, value, unit, reference, over, bound,
                within ? "" : "OUT OF BOUNDS");
    std::fflush(stdout);
    return within ? 0 : 1;
}

struct Reference {
    double psnr = 0;
    double secondsPerMegapixel = 0;
};

/// The reference at the best of its strengths.
Reference nonLocalMeans(const std::vector<cv::Mat> &clean, const std::vector<cv::Mat> &damaged) {
    Reference best;
    for (const float h : {20.0f, 25.0f, 30.0f}) {
        Reference one;
        double seconds = 0, pixels = 0;
        for (std::size_t i = 0; i < clean.size(); ++i) {
            QElapsedTimer timer;
            timer.start();
            cv::Mat out;
            cv::fastNlMeansDenoisingColored(damaged[i], out, h, h, 7, 21);
            seconds += double(timer.nsecsElapsed()) / 1e9;
            pixels += megapixels(clean[i]);
            one.psnr += cv::PSNR(clean[i], out) / double(clean.size());
        }
        one.secondsPerMegapixel = seconds / pixels;
        if (one.psnr > best.psnr)
            best = one;
    }
    return best;
}

int benchDenoise(EngineRun &engine, const std::vector<cv::Mat> &clean, const Reference &reference,
                 const std::vector<cv::Mat> &damaged) {
    struct Row {
        const char *name;
        Filter filter;
    };
    const Row rows[] = {
        {"denoise, Normal", {u"Denoise"_s, u"Low Light Beta"_s, {{u"param1_normalv2"_s, Deviation / 50}}}},
        {"denoise, Strong", {u"Denoise"_s, u"Severe Noise Beta"_s, {{u"param1_strongv2"_s, Deviation / 75}}}},
        {"denoise, Extreme", {u"Denoise"_s, u"Severe Noise"_s, {{u"param1"_s, Deviation / 100}}}},
    };
    int worst = 0;
    for (const Row &one : rows) {
        double seconds = 0, pixels = 0, psnr = 0;
        for (std::size_t i = 0; i < clean.size(); ++i) {
            const cv::Mat out = engine.run(damaged[i], {one.filter}, seconds);
            if (out.empty())
                return 2;
            pixels += megapixels(out);
            psnr += cv::PSNR(clean[i], out) / double(clean.size());
        }
        const double gain = psnr - reference.psnr, ratio = seconds / pixels / reference.secondsPerMegapixel;
        worst = std::max(worst, row(one.name, psnr, "dB", reference.psnr, gain, ">= 2", gain >= LeastGain));
        worst = std::max(worst, row("", seconds / pixels, "s/MP", reference.secondsPerMegapixel, ratio,
                                    "<= 1", ratio <= 1));
    }
    return worst;
}

/// Speed of the other models, against the same reference: how much they cost beside a denoiser.
int benchSpeed(EngineRun &engine, const cv::Mat &picture, const Reference &reference) {
    const QVariantMap sharp{{u"param1"_s, 0.0}, {u"param2"_s, 0.5}};
    QVariantMap lens = sharp;
    lens[u"isLens"_s] = true;
    const QVariantMap grown{{u"scale"_s, 2}, {u"param1"_s, 0.2}, {u"param2"_s, 0.2}, {u"param3"_s, 0.2}};
    const std::pair<const char *, Filter> rows[] = {
        {"sharpen, Standard", {u"Sharpen"_s, u"Sharpen Standard v2"_s, sharp}},
        {"sharpen, Strong", {u"Sharpen"_s, u"Sharpen Strong"_s, sharp}},
        {"sharpen, Lens blur", {u"Sharpen"_s, u"Sharpen Standard"_s, lens}},
        {"sharpen, Motion blur", {u"Sharpen"_s, u"Sharpen Standard"_s, sharp}},
        {"enlarge x2, Standard (v2)", {u"Enhance"_s, u"Standard V2"_s, grown}},
        {"enlarge x2, High fidelity", {u"Enhance"_s, u"High Fidelity"_s, grown}},
        {"exposure", {u"Exposure Adjust"_s, {}, {}}},
        {"white balance", {u"White Balance Adjust"_s, {}, {}}},
    };
    for (const auto &[name, filter] : rows) {
        double seconds = 0;
        if (engine.run(picture, {filter}, seconds).empty())
            return 2;
        const double speed = seconds / megapixels(picture);
        row(name, speed, "s/MP", reference.secondsPerMegapixel, speed / reference.secondsPerMegapixel, "",
            true);
    }
    return 0;
}

/// Most memory this process held since the last reset, in bytes; 0 where the system doesn't say.
double peakMemory() {
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toDouble() * 1024;
    return 0;
}

void resetPeakMemory() {
    QFile references(u"/proc/self/clear_refs"_s);
    if (references.open(QIODevice::WriteOnly))
        references.write("5");
}

int benchLarge(EngineRun &engine, const cv::Mat &photograph, const Reference &reference) {
    cv::Mat large;
    cv::resize(photograph, large, {6000, 4000}, 0, 0, cv::INTER_CUBIC);
    const std::vector<Filter> filters = {
        {u"Denoise"_s, u"Low Light Beta"_s, {{u"param1_normalv2"_s, 0.3}, {u"param2_normalv2"_s, 0.2}}},
        {u"Sharpen"_s, u"Sharpen Standard v2"_s, {{u"param2"_s, 0.4}, {u"param1"_s, 0.0}}}};
    resetPeakMemory();
    double seconds = 0;
    if (engine.run(large, filters, seconds).empty())
        return 2;
    const double memory = peakMemory(), speed = seconds / megapixels(large);
    row("24 megapixels, denoise and sharpen", seconds, "s", reference.secondsPerMegapixel * megapixels(large),
        speed / reference.secondsPerMegapixel, "", true);
    const double picture = double(large.total()) * 3;
    return row("  memory, with two copies of the picture", memory / 1e6, "MB", picture / 1e6,
               memory / picture, "<= 1200 MB", memory <= MemoryLimit);
}

} // namespace

int benchEngine(const QStringList &arguments) {
    const std::vector<cv::Mat> clean = photographs(arguments);
    if (clean.empty()) {
        std::fprintf(
            stderr,
            "engine: no photograph of at least 1280 x 960 pixels; name some, or install mate-backgrounds\n");
        return 2;
    }
    std::vector<cv::Mat> damaged;
    for (const cv::Mat &picture : clean)
        damaged.push_back(noisy(picture));
    std::printf("%zu photographs, noise of %.0f; reference: OpenCV fastNlMeansDenoisingColored\n",
                clean.size(), Deviation);
    std::printf("%-40s %8s %-5s %8s %8s\n", "", "", "", "ref.", "ratio");
    EngineRun engine;
    const Reference reference = nonLocalMeans(clean, damaged);
    int worst = benchDenoise(engine, clean, reference, damaged);
    cv::Mat large;
    cv::resize(clean.front(), large, {3000, 2000}, 0, 0, cv::INTER_CUBIC);
    worst = std::max(worst, benchSpeed(engine, large, reference));
    return std::max(worst, benchLarge(engine, clean.front(), reference));
}
