#include "Scenes.h"
#include "engine/analysis/Analyse.h"
#include "engine/analysis/Thresholds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace Scenes;

namespace {

class Photographs : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_FALSE(pictures().isEmpty()) << "the package mate-backgrounds is missing"; }

    static const QList<Picture> &pictures() {
        static const QList<Picture> all = [] {
            QList<Picture> list;
            for (const QString &path : photographs())
                list << photograph(path);
            return list;
        }();
        return all;
    }

    /// Every third one, for what takes many measurements; `orvane-bench autopilot` takes more.
    static QList<Picture> some() {
        QList<Picture> list;
        for (int i = 0; i < int(pictures().size()); i += 3)
            list << pictures()[i];
        return list;
    }

    static QStringList proposals(const Picture &picture, const ImageStatistics &statistics) {
        EngineInput input;
        input.image = image(picture);
        AutopilotOptions options;
        options.preferences.upscalingType = QStringLiteral("none");
        const QVariantMap settings = analyseImage(input, statistics, {}, options, {}).settings;
        QStringList proposed;
        for (const auto &[category, entry] : settings.asKeyValueRange()) {
            if (entry.toMap()[QStringLiteral("enabled")].toBool())
                proposed << category;
        }
        return proposed;
    }
};

} // namespace

TEST_F(Photographs, AddedNoiseIsMeasured) {
    for (const double sigma : {5.0, 15.0, 50.0}) {
        std::vector<double> errors;
        for (const Picture &picture : some())
            errors.push_back(std::abs(channelNoise(measured(noisy(picture, sigma))) / sigma - 1));
        std::sort(errors.begin(), errors.end());
        EXPECT_LT(errors[errors.size() / 2], 0.05) << sigma;
        EXPECT_LT(errors.back(), 0.15) << sigma;
    }
}

TEST_F(Photographs, BlurredOnesMeasureWiderWithAndWithoutNoise) {
    double noise = 0;
    for (const Picture &picture : some()) {
        float before = -1;
        for (const double sigma : {0.0, 1.2, 4.0}) {
            const float found = measured(noisy(blurred(picture, sigma), noise)).blur;
            EXPECT_GT(found, before) << sigma << ' ' << noise;
            before = found;
        }
        EXPECT_NEAR(before, 4, 1.6) << noise;
        noise = 2 - noise; // every other picture
    }
}

TEST_F(Photographs, CleanOnesAreLeftAloneAndSpoiltOnesAreNot) {
    int touched = 0;
    for (const Picture &picture : pictures()) {
        const ImageStatistics s = measured(picture);
        touched += proposals(picture, s).isEmpty() ? 0 : 1;
        EXPECT_LT(s.drawing, Thresholds::DrawingShare);
    }
    // One of them is softer than the others by nature.
    EXPECT_LE(touched, 1);
    const QString denoise = QStringLiteral("Denoise");
    const QString sharpen = QStringLiteral("Sharpen");
    for (const Picture &picture : some()) {
        for (const auto &[spoilt, category] :
             {std::pair(noisy(picture, 6), denoise), std::pair(grainy(picture, 12, 0.6), denoise),
              std::pair(noisy(blurred(picture, 2.5), 1), sharpen)})
            EXPECT_TRUE(proposals(spoilt, measured(spoilt)).contains(category));
    }
}
