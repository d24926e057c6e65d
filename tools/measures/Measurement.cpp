#include "Measurement.h"

#include "Measures.h"

#include "engine/analysis/Analyse.h"
#include "engine/analysis/ImageStatistics.h"

#include <opencv2/imgproc.hpp>

#include <thread>

using namespace Qt::StringLiterals;

namespace {

constexpr int CropSide = 200;

/// The most detailed square of a picture, or all of a smaller one.
cv::Rect detailedPart(const cv::Mat &picture) {
    cv::Rect best({}, picture.size());
    double most = -1;
    for (int y = 0; y + CropSide <= picture.rows; y += CropSide / 4) {
        for (int x = 0; x + CropSide <= picture.cols; x += CropSide / 4) {
            cv::Mat edges;
            cv::Laplacian(picture({x, y, CropSide, CropSide}), edges, CV_32F);
            if (const double detail = cv::norm(edges); detail > most) {
                most = detail;
                best = {x, y, CropSide, CropSide};
            }
        }
    }
    return best;
}

cv::Mat inBytes(const cv::Mat &picture) {
    cv::Mat out;
    picture.convertTo(out, CV_8U, picture.depth() == CV_16U ? 1 / 257.0 : 1);
    return out;
}

/// The case's filter with the slider where Autopilot puts it for this picture.
Filter automatic(const Case &one, const cv::Mat &damaged) {
    static const auto models = ModelCatalogue::read(QStringLiteral(ORVANE_MODELS));
    EngineInput input;
    input.image = toImage(damaged);
    input.isRaw = one.file != File::Picture;
    input.metadata[u"linearRaw"_s] = one.file == File::LinearRaw;
    Filter filter = one.settings.front();
    const QVariantMap found = analyseImage(input, measureImage(*input.image, {}), *models, {}, {})
                                  .settings[filter.category]
                                  .toMap();
    for (auto value = filter.params.begin(); value != filter.params.end(); ++value)
        *value = found.value(value.key(), *value);
    return filter;
}

} // namespace

Measurement::Measurement(Pictures photographs, Pictures drawings)
    : m_engines(std::max(1u, std::thread::hardware_concurrency()))
    , m_photographs(std::move(photographs))
    , m_drawings(std::move(drawings)) {
}

const Measurement::Pictures &Measurement::cleanFor(const Case &one) const {
    return one.source == Source::Drawings ? m_drawings : m_photographs;
}

Measurement::Score Measurement::score(const Case &one, const Pictures &answers) const {
    const Pictures &clean = cleanFor(one);
    Score score{0, 0, answers[clean.size() / 2]};
    for (std::size_t i = 0; i < clean.size(); ++i) {
        if (answers[i].size() != clean[i].size())
            return {};
        const double part = 1 / double(clean.size());
        score.psnr += part * (one.scale > 1 ? psnrOfLuminance(answers[i], clean[i], one.scale)
                                            : psnr(answers[i], clean[i]));
        score.ssim += part * ssim(answers[i], clean[i]);
    }
    return score;
}

Measurement::Score Measurement::reference(const Case &one, const Pictures &damaged) {
    Score &best = m_references[one.reference.name + one.damage];
    if (!best.shown.empty())
        return best;
    std::vector<Pictures> bySetting;
    for (const cv::Mat &picture : damaged) {
        const Pictures answers = one.reference.answers(inBytes(picture), one.scale);
        bySetting.resize(answers.size());
        for (std::size_t setting = 0; setting < answers.size(); ++setting)
            bySetting[setting].push_back(answers[setting]);
    }
    for (const Pictures &answers : bySetting) {
        if (Score found = score(one, answers); found.psnr > best.psnr)
            best = found;
    }
    return best;
}

Measurement::Score Measurement::ours(const Case &one, const Pictures &damaged,
                                     const std::vector<Filter> &perPicture) {
    Pictures answers(damaged.size());
    {
        std::vector<std::jthread> workers;
        for (std::size_t worker = 0; worker < m_engines.size(); ++worker)
            workers.emplace_back([&, worker] {
                double seconds = 0;
                for (std::size_t i = worker; i < damaged.size(); i += m_engines.size())
                    answers[i] = inBytes(m_engines[worker].run(damaged[i], {perPicture[i]}, seconds));
            });
    }
    return score(one, answers);
}

Outcome Measurement::measure(const Case &one) {
    const Pictures &clean = cleanFor(one);
    Pictures damaged;
    for (std::size_t i = 0; i < clean.size(); ++i)
        damaged.push_back(one.apply(clean[i], int(i)));
    Score best;
    for (const Filter &setting : one.settings) {
        const Score found = ours(one, damaged, std::vector<Filter>(clean.size(), setting));
        if (found.shown.empty())
            return {};
        if (found.psnr > best.psnr)
            best = found;
    }
    const Score other = reference(one, damaged);
    Outcome outcome{0, best.psnr, other.psnr, {}, best.ssim, other.ssim, {}};
    if (one.settings.front().category == u"Denoise"_s || one.settings.front().category == u"RAW"_s) {
        std::vector<Filter> chosen;
        for (const cv::Mat &picture : damaged)
            chosen.push_back(automatic(one, picture));
        outcome.automatic = ours(one, damaged, chosen).psnr;
    }
    for (std::size_t i = 0; one.scale == 1 && i < clean.size(); ++i)
        outcome.damaged += psnr(inBytes(damaged[i]), clean[i]) / double(clean.size());
    const std::size_t shown = clean.size() / 2;
    cv::Mat enlarged;
    cv::resize(inBytes(damaged[shown]), enlarged, clean[shown].size(), 0, 0, cv::INTER_NEAREST);
    const cv::Rect part = detailedPart(clean[shown]);
    cv::hconcat(Pictures{enlarged(part), other.shown(part), best.shown(part), clean[shown](part)},
                outcome.crops);
    return outcome;
}
