#include "AutopilotLook.h"

#include "engine/analysis/Thresholds.h"

#include <QElapsedTimer>

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <cstdio>

namespace {

constexpr double SecondsFor24 = 0.8;

} // namespace

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
    std::printf("blurs of 0 to 6 measured in the right order: %zu of %zu pairs\n", right, all);
    return right == all ? 0 : 1;
}

int mostDrawingLike(const std::vector<Photograph> &photographs) {
    float most = 0;
    QString name;
    for (const Photograph &photograph : photographs) {
        const float drawing = measureImage(*toImage(photograph.clean), {}).drawing;
        if (drawing >= most)
            name = photograph.name;
        most = std::max(most, drawing);
    }
    std::printf("flat colour beside edges, the most of any photograph: %.3f, %s (bound %.2f)\n", double(most),
                qPrintable(name), double(Thresholds::DrawingShare));
    return most < Thresholds::DrawingShare ? 0 : 1;
}

int timeLargePicture(const Photograph &photograph) {
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
        analyseImage(input, measureImage(*input.image, {}), {}, {}, {});
        best = std::min(best, double(timer.nsecsElapsed()) / 1e9);
    }
    std::printf("Autopilot on 24 megapixels: %.3f s (bound %.1f)\n", best, SecondsFor24);
    return best <= SecondsFor24 ? 0 : 1;
}
