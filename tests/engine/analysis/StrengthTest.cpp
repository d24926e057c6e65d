#include "AdviceCase.h"
#include "engine/analysis/Thresholds.h"

using namespace AdviceCase;

TEST(Advice, StrengthsFollowTheMeasurementAndThePreference) {
    Case noisy = with(20, 0.6);
    EXPECT_NEAR(noisy.number("Denoise", "param1_normalv2"), 20.0 / 50, 0.01);
    EXPECT_NEAR(noisy.number("Denoise", "param1"), 20.0 / 100, 0.01);
    Case blurry = with(0.5, 1.8);
    EXPECT_EQ(blurry.number("Sharpen", "param2"), blurry.number("Sharpen", "std_blur"));
    EXPECT_NEAR(2 * blurry.number("Sharpen", "std_blur"), 1.78, 0.05);
    double denoise = 0;
    double sharpen = 0;
    for (const int strength : {0, 1, 2, 3, 4}) {
        noisy.preferences().denoiseStrength = strength;
        blurry.preferences().sharpenStrength = strength;
        EXPECT_GT(noisy.number("Denoise", "param1_normalv2"), denoise) << strength;
        EXPECT_GT(blurry.number("Sharpen", "stg_blur"), sharpen) << strength;
        denoise = noisy.number("Denoise", "param1_normalv2");
        sharpen = blurry.number("Sharpen", "stg_blur");
    }
    // Noise is left to Sharpen only where Denoise doesn't take it first.
    Case both = with(15, 3);
    EXPECT_NEAR(both.number("Sharpen", "param1"), 0.01, 1e-9);
    both.preferences().denoiseLevels = {};
    EXPECT_NEAR(both.number("Sharpen", "param1"), 1, 1e-9);
    Case smeared = with(0.5, 0.8, BlurKind::Motion);
    smeared.statistics.motionLength = 6;
    EXPECT_TRUE(smeared.enabled("Sharpen"));
    EXPECT_NEAR(smeared.number("Sharpen", "param2"), 6.0 / 9, 0.01);
    EXPECT_FALSE(smeared.entry("Sharpen").value(words("isLens")).toBool());
    // The model would make something else of a smear that is longer than any it knows.
    smeared.statistics.motionLength = 15;
    EXPECT_LT(smeared.number("Sharpen", "param2"), 5.0 / 9);
    Case defocused = with(0.5, 0.8, BlurKind::Defocus);
    defocused.statistics.defocusRadius = 5;
    EXPECT_NEAR(defocused.number("Sharpen", "param2"), 5.0 / 8, 0.03);
    EXPECT_TRUE(defocused.entry("Sharpen").value(words("isLens")).toBool());
    // Too much is worse than too little: less is taken back where the kind of blur is open.
    EXPECT_LT(with(0.5, 2.8, BlurKind::Unknown).number("Sharpen", "param2"),
              0.9 * with(0.5, 2.8).number("Sharpen", "param2"));
    smeared.preferences().sharpeningModel = words("lensblur");
    EXPECT_TRUE(smeared.entry("Sharpen").value(words("isLens")).toBool());

    Case toned;
    toned.preferences().exposureStrength = -25;
    toned.preferences().exposureRAWStrength = 60;
    toned.preferences().temperatureValue = 70;
    toned.preferences().opacityValue = 40;
    EXPECT_DOUBLE_EQ(toned.number("Exposure Adjust", "param1"), -0.25);
    EXPECT_DOUBLE_EQ(toned.number("White Balance Adjust", "temperature"), 0.7);
    EXPECT_DOUBLE_EQ(toned.number("White Balance Adjust", "strength"), 0.4);
    toned.input.isRaw = true;
    EXPECT_DOUBLE_EQ(toned.number("Exposure Adjust", "param1"), 0.6);
}

TEST(Advice, TheStatusViewReadsTheSameLevels) {
    // The view's own boundaries, as it tests them: above.
    const auto shownAsNoise = [](double v) { return v > 0.5 ? 4 : v > 0.33 ? 3 : v > 0.09 ? 2 : 1; };
    const auto shownAsBlur = [](double v) { return v > 0.37 ? 3 : v > 0.22 ? 2 : 1; };
    for (const double value :
         {0.2, 0.9, 1.15, 1.4, 2.5, 2.6, 3.4, 4.0, 12.0, 13.0, 25.0, 26.0, 80.0, 300.0}) {
        const QVariantMap problems = with(value, value).answer().problems;
        const QVariantMap shown = problems[words("ap_params")].toMap();
        const int noise = std::max(1, problems[words("noise_level")].toInt());
        const int blur = std::max(1, problems[words("blur_level")].toInt());
        EXPECT_EQ(shownAsNoise(shown[words("noise")].toDouble()), noise) << value;
        EXPECT_EQ(shownAsBlur(shown[words("blur")].toDouble()), blur) << value;
    }
    Case c;
    EXPECT_EQ(c.answer().problems[words("faceCount")].toInt(), 0);
    c.preferences().faceDetection = words("none");
    EXPECT_EQ(c.answer().problems[words("faceCount")].toInt(), -1);
    const QVariantMap reasons = c.answer().problems[words("reasons")].toMap();
    EXPECT_EQ(reasons.keys(), c.answer().settings.keys());
    for (const QVariant &reason : reasons)
        EXPECT_FALSE(reason.toMap()[words("text")].toString().isEmpty());
    const QVariantMap noise = reasons[words("Denoise")].toMap();
    EXPECT_NEAR(noise[words("measured")].toDouble(), 0.5, 1e-6);
    EXPECT_DOUBLE_EQ(noise[words("threshold")].toDouble(), Thresholds::NoiseMedium);
}
