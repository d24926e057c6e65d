#include "AutopilotLook.h"

#include <opencv2/imgproc.hpp>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double Equal = 60; ///< decibels from which on pictures count as equal

Look look(const Degradation &degradation, const Photograph &photograph, std::size_t index) {
    cv::RNG random(std::uint64_t(1000 + index));
    Look result;
    result.degraded = degradation.apply(photograph, random);
    EngineInput input;
    input.image = toImage(result.degraded.picture);
    static const auto models = ModelCatalogue::read(QStringLiteral(ORVANE_MODELS));
    AutopilotOptions options;
    options.preferences.upscalingType = u"none"_s;
    result.statistics = measureImage(*input.image, {});
    result.answer = analyseImage(input, result.statistics, *models, options, {});
    return result;
}

} // namespace

double Look::noise() const {
    const std::array<float, 3> &noise = statistics.noise;
    const double sum = noise[0] * noise[0] + noise[1] * noise[1] + noise[2] * noise[2];
    return 255 * std::sqrt(sum / 3);
}

bool Look::proposes(const QString &category) const {
    return answer.settings[category].toMap()[u"enabled"_s].toBool();
}

bool Look::proposesTone() const {
    return proposes(u"Exposure Adjust"_s) || proposes(u"White Balance Adjust"_s);
}

std::vector<Filter> Look::stack() const {
    std::vector<Filter> filters;
    for (const QString &category :
         {u"Exposure Adjust"_s, u"White Balance Adjust"_s, u"Denoise"_s, u"Sharpen"_s}) {
        QVariantMap entry = answer.settings[category].toMap();
        const QString model = entry.take(u"model"_s).toString();
        if (entry.take(u"enabled"_s).toBool())
            filters.push_back({category, model, entry});
    }
    return filters;
}

std::vector<Look> measureAll(const Degradation &degradation, const std::vector<Photograph> &photographs) {
    std::vector<Look> looks(photographs.size());
    cv::parallel_for_({0, int(photographs.size())}, [&](const cv::Range &range) {
        for (auto i = std::size_t(range.start); i < std::size_t(range.end); ++i)
            looks[i] = look(degradation, photographs[i], i);
    });
    return looks;
}

double gainOf(const Look &look, EngineRun &engine) {
    const std::vector<Filter> filters = look.stack();
    if (filters.empty())
        return 0;
    double seconds = 0;
    const cv::Mat &clean = look.degraded.clean;
    const cv::Rect part(clean.cols / 4, clean.rows / 4, clean.cols / 2, clean.rows / 2);
    const cv::Mat out = engine.run(look.degraded.picture, filters, seconds, part);
    if (out.empty())
        return 0;
    const auto quality = [&](const cv::Mat &picture) {
        return std::min(cv::PSNR(clean(part), picture), Equal);
    };
    return quality(out) - quality(look.degraded.picture(part));
}
