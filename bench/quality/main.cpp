#include "../Photographs.h"
#include "Measures.h"
#include "Page.h"

#include <QCoreApplication>

#include <opencv2/imgproc.hpp>

#include <sys/resource.h>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

const cv::Size PhotographSize(640, 480);
constexpr int CropSide = 200;

double compare(const Case &one, const cv::Mat &picture, const cv::Mat &clean) {
    return one.scale > 1 ? psnrOfLuminance(picture, clean, one.scale) : psnr(picture, clean);
}

/// The most detailed square of a picture.
cv::Rect detailedPart(const cv::Mat &picture) {
    cv::Rect best;
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

/// The answers to one damage, each at all its settings.
struct Answers {
    std::vector<cv::Mat> damaged;
    std::vector<std::vector<cv::Mat>> ours, reference; ///< by setting, then by photograph
    double seconds = 0, megapixels = 0;
};

std::pair<std::size_t, double> best(const Case &one, const std::vector<std::vector<cv::Mat>> &bySetting,
                                    const std::vector<cv::Mat> &clean) {
    std::pair<std::size_t, double> found(0, -1);
    for (std::size_t setting = 0; setting < bySetting.size(); ++setting) {
        double mean = 0;
        for (std::size_t i = 0; i < clean.size(); ++i)
            mean += compare(one, bySetting[setting][i], clean[i]) / double(clean.size());
        if (mean > found.second)
            found = {setting, mean};
    }
    return found;
}

Answers answer(EngineRun &engine, const Case &one, const std::vector<cv::Mat> &clean) {
    Answers answers;
    answers.ours.resize(one.settings.size());
    for (std::size_t i = 0; i < clean.size(); ++i) {
        answers.damaged.push_back(one.apply(clean[i], int(i)));
        for (std::size_t setting = 0; setting < one.settings.size(); ++setting) {
            answers.ours[setting].push_back(
                engine.run(answers.damaged.back(), {one.settings[setting]}, answers.seconds));
            answers.megapixels += megapixels(answers.damaged.back());
        }
        const std::vector<cv::Mat> others = one.reference.answers(answers.damaged.back(), one.scale);
        answers.reference.resize(others.size());
        for (std::size_t setting = 0; setting < others.size(); ++setting)
            answers.reference[setting].push_back(others[setting]);
    }
    return answers;
}

Outcome measure(EngineRun &engine, const Case &one, const std::vector<cv::Mat> &clean, std::size_t shown) {
    const Answers answers = answer(engine, one, clean);
    Outcome outcome;
    for (const auto &setting : answers.ours)
        for (const cv::Mat &picture : setting)
            if (picture.size() != clean.front().size())
                return outcome;
    const auto [ourSetting, ours] = best(one, answers.ours, clean);
    const auto [otherSetting, reference] = best(one, answers.reference, clean);
    outcome.ours = ours;
    outcome.reference = reference;
    outcome.secondsPerMegapixel = answers.seconds / answers.megapixels;
    for (std::size_t i = 0; i < clean.size(); ++i) {
        const double part = 1 / double(clean.size());
        if (one.scale == 1)
            outcome.damaged += psnr(answers.damaged[i], clean[i]) * part;
        outcome.ourSsim += ssim(answers.ours[ourSetting][i], clean[i]) * part;
        outcome.referenceSsim += ssim(answers.reference[otherSetting][i], clean[i]) * part;
    }
    cv::Mat damaged;
    cv::resize(answers.damaged[shown], damaged, clean[shown].size(), 0, 0, cv::INTER_NEAREST);
    const cv::Rect part = detailedPart(clean[shown]);
    cv::hconcat(std::vector{damaged(part), answers.reference[otherSetting][shown](part),
                            answers.ours[ourSetting][shown](part), clean[shown](part)},
                outcome.crops);
    return outcome;
}

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2) {
        std::fprintf(stderr,
                     "orvane-quality FOLDER: measures every model and writes a page into the folder\n");
        return 2;
    }
    std::vector<cv::Mat> clean;
    // The networks learned from the other packages.
    for (const Photograph &photograph :
         readPhotographs(installedPhotographs().filter(u"/mate/nature/"_s), PhotographSize))
        if (photograph.clean.size() == PhotographSize)
            clean.push_back(photograph.clean);
    if (clean.empty()) {
        std::fprintf(stderr, "orvane-quality: no photographs; install mate-backgrounds\n");
        return 2;
    }
    EngineRun engine;
    const std::vector<Case> cases = allCases();
    std::vector<Outcome> outcomes;
    for (const Case &one : cases) {
        const Outcome &outcome = outcomes.emplace_back(measure(engine, one, clean, clean.size() / 2));
        std::printf("%-32s %-24s %6.2f -> %6.2f dB, %s %6.2f, %.2f s/MP\n", one.model.c_str(),
                    one.damage.c_str(), outcome.damaged, outcome.ours, one.reference.name.c_str(),
                    outcome.reference, outcome.secondsPerMegapixel);
        std::fflush(stdout);
        if (outcome.crops.empty()) {
            std::fprintf(stderr, "orvane-quality: %s did not answer\n", one.model.c_str());
            return 1;
        }
    }
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    if (!writePage(arguments.at(1), cases, outcomes, int(clean.size()), double(usage.ru_maxrss) / 1024)) {
        std::fprintf(stderr, "orvane-quality: the page could not be written\n");
        return 1;
    }
    return 0;
}
