#include "Cases.h"

#include "Damage.h"
#include "Sensor.h"
#include "bench/Samples.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double LineAngle = 0.5;

std::string text(const char *format, double value) {
    return QString::asprintf(format, value).toStdString();
}

void addDenoise(std::vector<Case> &cases) {
    struct Model {
        const char *name;
        QString model, strength;
        double sigmaAtFull;
    };
    const Model models[] = {{"Denoise Normal", u"Low Light Beta"_s, u"param1_normalv2"_s, 50},
                            {"Denoise Strong", u"Severe Noise Beta"_s, u"param1_strongv2"_s, 75},
                            {"Denoise Extreme", u"Severe Noise"_s, u"param1"_s, 100}};
    for (const Model &one : models) {
        const auto at = [&one](double sigma) {
            return std::vector<Filter>{{u"Denoise"_s, one.model, {{one.strength, sigma / one.sigmaAtFull}}}};
        };
        for (const double sigma : {15.0, 25.0, 50.0})
            cases.push_back(
                {one.name, text("white noise %.0f", sigma),
                 [sigma](const cv::Mat &clean, int seed) { return withNoise(clean, sigma, seed); }, at(sigma),
                 NonLocalMeans});
        cases.push_back({one.name, "noise 15, chroma 12",
                         [](const cv::Mat &clean, int seed) { return withChromaNoise(clean, 15, 12, seed); },
                         at(20), NonLocalMeans});
    }
}

void addRaw(std::vector<Case> &cases) {
    constexpr double Smear = 0.7;
    struct Model {
        const char *name;
        QString model, strength;
        double sigmaAtFull;
        File file;
        std::vector<double> levels;
    };
    const Model models[] = {
        {"RAW Native", u"RAW Native"_s, u"param1_native"_s, 40, File::Mosaic, {8, 20}},
        {"RAW Standard", u"RAW Standard"_s, u"param1_standard"_s, 75, File::Mosaic, {8, 20, 40}},
        {"RAW Linear", u"Linear RAW"_s, u"param1_native"_s, 40, File::LinearRaw, {8, 20}}};
    for (const Model &one : models) {
        for (const double level : one.levels) {
            std::vector<Filter> settings;
            for (const double share : {0.7, 1.0, 1.3, 1.8})
                settings.push_back(
                    {u"RAW"_s, one.model, {{one.strength, std::min(1.0, share * level / one.sigmaAtFull)}}});
            const double smear = one.file == File::LinearRaw ? Smear : 0;
            cases.push_back({one.name,
                             text(smear > 0 ? "sensor, smeared, noise %.0f" : "sensor, noise %.0f", level),
                             [level, smear](const cv::Mat &clean, int seed) {
                                 return throughSensor(clean, level, smear, seed);
                             },
                             settings, NonLocalMeans, 1, Source::Photographs, one.file});
        }
    }
}

void addSharpen(std::vector<Case> &cases, const char *name, const QString &model, bool lens, double noise,
                const std::vector<std::pair<std::string, cv::Mat>> &kernels) {
    std::vector<Filter> settings;
    for (const double denoise : {0.01, 0.1})
        for (const double strength : {0.25, 0.33, 0.45, 0.55, 0.65, 0.78, 0.9})
            settings.push_back({u"Sharpen"_s,
                                model,
                                {{u"param1"_s, denoise}, {u"param2"_s, strength}, {u"isLens"_s, lens}}});
    for (const auto &[damage, kernel] : kernels)
        cases.push_back({name, damage + text(", noise %.0f", noise),
                         [kernel = kernel, noise](const cv::Mat &clean, int seed) {
                             return convolved(clean, kernel, noise, seed);
                         },
                         settings, UnsharpMask});
}

std::vector<std::pair<std::string, cv::Mat>> kernels(const char *format, const std::vector<double> &sizes,
                                                     const std::function<cv::Mat(double)> &make) {
    std::vector<std::pair<std::string, cv::Mat>> found;
    for (const double size : sizes)
        found.emplace_back(text(format, size), make(size));
    return found;
}

void addEnlarge(std::vector<Case> &cases) {
    const std::pair<const char *, QString> models[] = {{"Upscale Standard v2", u"Standard V2"_s},
                                                       {"Upscale High fidelity v2", u"High Fidelity V2"_s},
                                                       {"Upscale Standard", u"Standard"_s},
                                                       {"Upscale High fidelity", u"High Fidelity"_s},
                                                       {"Upscale Graphics", u"CGI"_s},
                                                       {"Upscale Low resolution", u"Low Resolution"_s}};
    for (const auto &one : models) {
        const auto &[name, model] = one;
        const auto add = [&cases, name = one.first, model = one.second](int scale, Source source) {
            const QVariantMap params{
                {u"scale"_s, scale}, {u"param1"_s, 0.01}, {u"param2"_s, 0.01}, {u"param3"_s, 0.01}};
            const std::vector<Filter> settings{{u"Enhance"_s, model, params}};
            const Reference &reference = scale == 2 ? Bicubic : Lanczos;
            const std::string from = source == Source::Drawings ? "drawings " : "";
            cases.push_back({name, from + "reduced by " + std::to_string(scale),
                             [scale](const cv::Mat &clean, int) { return reduced(clean, scale); }, settings,
                             reference, scale, source});
        };
        // The page shows the second one.
        const auto addBoth = [&add](Source source) { add(2, source), add(4, source); };
        if (model == u"CGI"_s)
            addBoth(Source::Drawings);
        addBoth(Source::Photographs);
        if (model.endsWith(u"V2"_s))
            addBoth(Source::Drawings);
    }
    const auto settings = [](const QString &model, const QString &slider, int scale) {
        std::vector<Filter> found;
        for (const double amount : {0.01, 0.2, 0.4, 0.7, 1.0}) {
            QVariantMap params{
                {u"scale"_s, scale}, {u"param1"_s, 0.01}, {u"param2"_s, 0.01}, {u"param3"_s, 0.01}};
            params[slider] = amount;
            found.push_back({u"Enhance"_s, model, params});
        }
        return found;
    };
    for (const int scale : {2, 4})
        cases.push_back({"Upscale Low resolution, worn", text("reduced by %.0f, JPEG 40", scale),
                         [scale](const cv::Mat &clean, int) { return withJpeg(reduced(clean, scale), 40); },
                         settings(u"Low Resolution"_s, u"param1"_s, scale), scale == 2 ? Bicubic : Lanczos,
                         scale});
    cases.push_back({"Upscale Standard v2, scale 1", "JPEG 20",
                     [](const cv::Mat &clean, int) { return withJpeg(clean, 20); },
                     settings(u"Standard V2"_s, u"param3"_s, 1), LeftAlone});
}

} // namespace

std::vector<Case> allCases() {
    std::vector<Case> cases;
    addDenoise(cases);
    addRaw(cases);
    const auto line = [](double length) { return lineKernel(length, LineAngle); };
    addSharpen(cases, "Sharpen Standard", u"Sharpen Standard v2"_s, false, 2,
               kernels("Gaussian %.1f", {1.0, 1.3, 1.6}, gaussianKernel));
    addSharpen(cases, "Sharpen Strong", u"Sharpen Strong"_s, false, 2,
               kernels("Gaussian %.1f", {1.6, 2.4}, gaussianKernel));
    addSharpen(cases, "Sharpen Lens blur", u"Sharpen Standard"_s, true, 1,
               kernels("disc %.0f", {3, 5, 7}, discKernel));
    addSharpen(cases, "Sharpen Motion blur", u"Sharpen Standard"_s, false, 1,
               kernels("line %.0f", {3, 5, 7}, line));
    addEnlarge(cases);
    return cases;
}
