#include "Scenes.h"
#include "engine/analysis/Thresholds.h"

#include <gtest/gtest.h>

#include <numbers>

using namespace Scenes;

namespace {

constexpr int Width = 512;
constexpr int Height = 384;

const Picture &scene() {
    static const Picture picture = still(Width, Height);
    return picture;
}

} // namespace

TEST(Noise, WhiteNoiseIsMeasured) {
    const Picture dark = tinted(scene(), {0.12f, 0.1f, 0.08f});
    Picture onBlack = still(640, 480); // so that the other half is enough to measure
    for (Plane &plane : onBlack)
        std::fill(plane.values.begin(), plane.values.begin() + 640 * 480 / 2, 0.0f);
    const std::tuple<const char *, Picture, double, double> rows[] = {
        {"weak", scene(), 5, 0.05},
        {"medium", scene(), 12, 0.05},
        {"strong", scene(), 25, 0.05},
        {"strong enough to clip", scene(), 50, 0.08},
        {"flat grey", flat(256, 256, {0.5f, 0.5f, 0.5f}), 10, 0.05},
        {"black, half of the noise cut off", flat(256, 256, {0, 0, 0}), 10, 0.15},
        {"half of it black", onBlack, 15, 0.08},
        {"dark picture", dark, 20, 0.15}};
    for (const auto &[name, picture, sigma, tolerance] : rows) {
        SCOPED_TRACE(name);
        const ImageStatistics s = measured(noisy(picture, sigma));
        EXPECT_NEAR(channelNoise(s) / sigma, 1, tolerance);
        EXPECT_NEAR(double(s.lumaNoise) * 255 / sigma, 0.669, 0.13);
        EXPECT_LT(s.grainSize, 0.3f);
    }
}

TEST(Noise, ChannelsAreToldApart) {
    Picture picture = noisy(scene(), 8);
    picture[1] = scene()[1];
    picture[2] = noisy(scene(), 24)[2];
    const ImageStatistics s = measured(picture);
    EXPECT_NEAR(double(s.noise[0]) * 255, 8, 1);
    EXPECT_LT(double(s.noise[1]) * 255, 1.5);
    EXPECT_NEAR(double(s.noise[2]) * 255, 24, 2.5);
}

TEST(Noise, CoarseGrainIsSeenAndEdgesAndTextureAreNoNoise) {
    EXPECT_LT(channelNoise(measured(scene())), 1);
    for (const double grain : {0.6, 0.9}) {
        const ImageStatistics s = measured(grainy(scene(), 10, grain));
        EXPECT_NEAR(double(s.grainSize), grain, 0.12) << grain;
        EXPECT_NEAR(channelNoise(s), 10, 2) << grain;
    }
}

TEST(Noise, SpotsOfColourAreSeen) {
    const std::tuple<const char *, Picture, double, double> rows[] = {
        {"none", scene(), 0, 1.5},
        {"white noise", noisy(scene(), 15), 0, 1.5},
        {"spots", blotched(scene(), 12, 2), 6, 15},
        {"spots below noise", noisy(blotched(scene(), 12, 2), 15), 6, 15},
        {"wide spots below noise", noisy(blotched(scene(), 12, 3.5), 15), 5, 15},
        {"weak spots", noisy(blotched(scene(), 5, 2), 5), 2.5, 6.5},
        {"too small to tell", noisy(blotched(flat(60, 60, {0.5f, 0.5f, 0.5f}), 12, 2), 15), 0, 0}};
    for (const auto &[name, picture, least, most] : rows) {
        const double found = 255 * double(measured(picture).chromaBlotches);
        EXPECT_GE(found, least) << name;
        EXPECT_LE(found, most) << name;
    }
}

TEST(Blur, WiderBlurMeasuresWider) {
    double before = -1;
    for (const double sigma : {0.0, 0.7, 1.2, 2.0, 3.0, 5.0}) {
        const double found = measured(blurred(scene(), sigma)).blur;
        EXPECT_GT(found, before) << sigma;
        if (sigma >= 1) {
            EXPECT_NEAR(found / sigma, 1, 0.4) << sigma; // bars a few pixels wide look sharper
        }
        before = found;
    }
    // Noise makes fine gradients of its own; they must not pass for sharp edges.
    EXPECT_NEAR(measured(noisy(blurred(scene(), 2), 6)).blur, 2, 0.8);
    EXPECT_NEAR(measured(noisy(blurred(scene(), 4), 1)).blur, 4, 1.5);
}

TEST(Blur, TheKindIsToldFromTheSpectrum) {
    const Picture fine = leaves(Width, Height);
    const auto turned = [](double degrees) { return degrees * std::numbers::pi / 180; };
    const std::tuple<const char *, Picture, BlurKind, double, double> rows[] = {
        {"sharp", fine, BlurKind::Unknown, 0, 0},
        {"soft", blurred(fine, 1.6), BlurKind::Soft, 1.6, 0},
        {"out of focus", defocused(fine, 3), BlurKind::Defocus, 3, 0},
        {"far out of focus", defocused(fine, 6), BlurKind::Defocus, 6, 0},
        {"smeared", smeared(fine, 9, 0), BlurKind::Motion, 9, 0},
        {"smeared, slanted", smeared(fine, 13, turned(45)), BlurKind::Motion, 13, 45},
        {"smeared, steep", smeared(fine, 13, turned(120)), BlurKind::Motion, 13, 120},
        {"smeared, with noise", noisy(smeared(fine, 13, turned(120)), 2), BlurKind::Motion, 13, 120},
        {"too much noise", noisy(defocused(fine, 3), 25), BlurKind::Unknown, 0, 0}};
    for (const auto &[name, picture, kind, size, degrees] : rows) {
        SCOPED_TRACE(name);
        const ImageStatistics s = measured(picture);
        EXPECT_EQ(int(s.blurKind), int(kind));
        const float found = kind == BlurKind::Soft      ? s.softness
                            : kind == BlurKind::Defocus ? s.defocusRadius
                                                        : s.motionLength;
        EXPECT_NEAR(found, size, 0.15 * size);
        if (kind == BlurKind::Motion) {
            const double turn = std::abs(double(s.motionAngle) - turned(degrees));
            EXPECT_LT(std::min(turn, std::numbers::pi - turn), 0.15);
        }
    }
}

TEST(Drawing, DrawingsAreToldFromPhotographs) {
    const auto drawn = [](auto colour) {
        return painted(320, 240, [&](int x, int y, std::size_t c) { return float(colour(x, y, int(c))); });
    };
    const auto inDisc = [](int x, int y) { return (x - 160) * (x - 160) + (y - 120) * (y - 120) < 90 * 90; };
    const Picture shapes =
        drawn([](int x, int y, int c) { return float((x / 20 * 7 + y / 16 * 5 + c * 3) % 16 + 1) / 20; });
    const Picture stem = noisy(leaves(320, 240), 1);
    const std::tuple<const char *, Picture, bool> rows[] = {
        {"flat shapes", shapes, true},
        {"black on white, as text is",
         drawn([](int x, int y, int) { return x % 9 < 2 && y % 14 < 9 ? 0.0f : 1.0f; }), true},
        {"shapes as a lens and a sensor show them", noisy(blurred(shapes, 0.7), 1), false},
        {"a thing before a burnt-out sky",
         drawn([&](int x, int y, int c) { return inDisc(x, y) ? 0.8f * stem[std::size_t(c)].at(x, y) : 1; }),
         false},
        {"nothing to see", flat(320, 240, {0.4f, 0.5f, 0.6f}), false},
    };
    for (const auto &[name, picture, drawing] : rows)
        EXPECT_EQ(measured(picture).drawing >= Thresholds::DrawingShare, drawing)
            << name << ' ' << measured(picture).drawing;
}

TEST(Compression, QualityIsReadFromThePixels) {
    // A little noise stands for the texture that photographs have in every block.
    const Picture lively = noisy(scene(), 3);
    for (const int quality : {90, 75, 50, 30})
        EXPECT_NEAR(measured(compressed(lively, quality)).jpegQuality, quality, 6) << quality;
    EXPECT_EQ(measured(lively).jpegQuality, 100);
    EXPECT_GT(measured(compressed(lively, 20)).blockiness, measured(lively).blockiness + 0.5f / 255);
}

TEST(Tones, PercentilesClippingAndLight) {
    Picture half = flat(400, 400, {0.25f, 0.25f, 0.25f});
    for (Plane &plane : half) {
        std::fill(plane.values.begin(), plane.values.begin() + 400 * 40, 1.0f);
        std::fill(plane.values.end() - 400 * 20, plane.values.end(), 0.0f);
    }
    const ImageStatistics s = measured(half);
    EXPECT_NEAR(s.lumaLow, 0, 0.01);
    EXPECT_NEAR(s.lumaMedian, 0.25, 0.01);
    EXPECT_NEAR(s.lumaHigh, 1, 0.01);
    EXPECT_NEAR(s.clippedHigh, 0.1, 0.01);
    EXPECT_NEAR(s.clippedLow, 0.05, 0.01);

    Picture grey = still(Width, Height);
    grey[0] = grey[1];
    grey[2] = grey[1];
    const ImageStatistics neutral = measured(grey);
    EXPECT_NEAR(neutral.illuminant[0], 1, 0.01);
    EXPECT_GT(neutral.castConfidence, 0.8f);
    const ImageStatistics warm = measured(tinted(grey, {1.15f, 1, 0.8f}));
    EXPECT_GT(warm.illuminant[0], 1.1f);
    EXPECT_LT(warm.illuminant[2], 0.7f);
    EXPECT_GT(warm.castConfidence, 0.8f);
    // What the light is has nothing to do with noise and blur.
    const Picture dusk = tinted(scene(), {1.2f, 1, 0.75f});
    const ImageStatistics before = measured(dusk);
    for (const Picture &spoilt : {noisy(dusk, 20), blurred(dusk, 3)}) {
        const ImageStatistics after = measured(spoilt);
        EXPECT_NEAR(after.illuminant[0], before.illuminant[0], 0.05);
        EXPECT_NEAR(after.illuminant[2], before.illuminant[2], 0.05);
        EXPECT_NEAR(after.castConfidence, before.castConfidence, 0.1);
    }
}
