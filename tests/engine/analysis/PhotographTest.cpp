#include "Scenes.h"
#include "engine/analysis/Analyse.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>

using namespace Scenes;

namespace {

class Photographs : public ::testing::Test {
protected:
    void SetUp() override {
        if (photographs().isEmpty())
            GTEST_SKIP() << "no photographs on this machine (package mate-backgrounds)";
    }

    static const QList<Picture> &pictures() {
        static const QList<Picture> all = [] {
            QList<Picture> list;
            for (const QString &path : photographs())
                list << photograph(path);
            return list;
        }();
        return all;
    }

    static bool proposed(const Picture &picture, const char *category) {
        const auto pixels = image(picture);
        EngineInput input;
        input.image = pixels;
        AutopilotOptions options;
        options.preferences.upscalingType = QStringLiteral("none");
        return analyseImage(input, measureImage(*pixels, {}), options, {})
            .settings.value(QString::fromLatin1(category))
            .toMap()
            .value(QStringLiteral("enabled"))
            .toBool();
    }

    /// The photographs that get this proposal after being spoilt, by their places in the list.
    static std::vector<int> proposals(const char *category,
                                      const std::function<Picture(const Picture &)> &spoil) {
        std::vector<int> found;
        for (int i = 0; i < int(pictures().size()); ++i) {
            if (proposed(spoil(pictures()[i]), category))
                found.push_back(i);
        }
        return found;
    }
};

} // namespace

TEST_F(Photographs, AddedNoiseIsMeasured) {
    for (const double sigma : {5.0, 10.0, 25.0, 50.0}) {
        std::vector<double> errors;
        for (const Picture &picture : pictures()) {
            const ImageStatistics s = measureImage(*image(noisy(picture, sigma)), {});
            errors.push_back(std::abs(255.0 * double(s.noise[0] + s.noise[1] + s.noise[2]) / 3 / sigma - 1));
        }
        std::sort(errors.begin(), errors.end());
        EXPECT_LT(errors[errors.size() / 2], 0.05) << sigma;
        EXPECT_LT(errors.back(), 0.15) << sigma;
    }
}

TEST_F(Photographs, BlurredOnesMeasureWider) {
    for (const Picture &picture : pictures()) {
        float before = -1;
        for (const double sigma : {0.0, 1.0, 2.0, 4.0}) {
            const float found = measureImage(*image(blurred(picture, sigma)), {}).blur;
            EXPECT_GT(found, before) << sigma;
            before = found;
        }
    }
}

TEST_F(Photographs, CleanOnesAreLeftAloneAndSpoiltOnesAreNot) {
    const auto all = std::size_t(pictures().size());
    const auto asIs = [](const Picture &p) { return p; };
    for (const char *category : {"Denoise", "Sharpen", "White Balance Adjust"})
        EXPECT_EQ(proposals(category, asIs), std::vector<int>()) << category;
    EXPECT_EQ(proposals("Denoise", [](const Picture &p) { return noisy(p, 6); }).size(), all);
    EXPECT_EQ(proposals("Denoise", [](const Picture &p) { return grainy(p, 12, 0.6); }).size(), all);
    EXPECT_GE(proposals("Sharpen", [](const Picture &p) { return blurred(p, 2.5); }).size(), all * 9 / 10);
}
