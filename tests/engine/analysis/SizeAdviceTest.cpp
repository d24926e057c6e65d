#include "AdviceCase.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

using P = Autopilot::Preferences;

struct Answer {
    bool enabled;
    QString mode;
    double scale;
    QVariantMap entry;
};

Answer ask(int width, int height, const std::function<void(P &)> &prefer, const EngineInput &input = {}) {
    ImageStatistics s;
    s.width = width;
    s.height = height;
    AutopilotOptions options;
    prefer(options.preferences);
    const QVariantMap entry = analyseImage(input, s, AdviceCase::shippedModels(), options, {})
                                  .settings.value(QStringLiteral("Enhance"))
                                  .toMap();
    return {entry[QStringLiteral("enabled")].toBool(), entry[QStringLiteral("mode")].toString(),
            entry[QStringLiteral("scale")].toDouble(), entry};
}

std::function<void(P &)> type(const char *name, float factor, bool down = false, int unit = 1) {
    return [=](P &p) {
        p.upscalingType = QString::fromLatin1(name);
        p.upscalingFactor = factor;
        p.enableDownscaling = down;
        p.resolutionUnit = unit;
    };
}

} // namespace

TEST(SizeAdvice, TypeAndFactorDecide) {
    struct Row {
        const char *name;
        int width;
        int height;
        std::function<void(P &)> prefer;
        bool enabled;
        const char *mode;
        double scale;
    };
    const auto standard = [](P &) {};
    const Row rows[] = {
        {"small picture, as far as 12 megapixels", 2000, 1500, standard, true, "scale", 2},
        {"tiny picture, four times at most", 400, 300, standard, true, "scale", 4},
        {"five megapixels: half as much again", 2600, 2000, standard, true, "scale", 1.51},
        {"six megapixels are enough", 3000, 2000, standard, false, "scale", 2},
        {"an icon", 24, 24, standard, false, "scale", 2},
        {"none", 400, 300, type("none", 2), false, "scale", 2},
        {"scale", 3000, 2000, type("scale", 3), true, "scale", 3},
        {"scale of 1 does nothing", 3000, 2000, type("scale", 1), false, "scale", 1},
        {"scale down", 3000, 2000, type("scale", 0.5f), true, "scale", 0.5},
        {"scale beyond the limit", 1000, 800, type("scale", 50), true, "scale", 6},
        {"scale beyond the longest side", 16000, 200, type("scale", 6), true, "scale", 2},
        {"scale of nonsense", 1000, 800, type("scale", -3), false, "scale", 1},
        {"width", 1920, 1080, type("width", 3840), true, "width", 2},
        {"height", 1920, 1080, type("height", 2160), true, "height", 2},
        {"longest of a portrait", 1000, 2000, type("longest", 3000), true, "height", 1.5},
        {"shortest of a portrait", 1000, 2000, type("shortest", 3000), true, "width", 3},
        {"smaller is refused", 4000, 3000, type("width", 2000), false, "scale", 2},
        {"smaller is allowed", 4000, 3000, type("width", 2000, true), true, "width", 0.5},
        {"already that wide", 2000, 1000, type("width", 2000, true), false, "width", 1},
        {"inches at 72 to the inch", 720, 500, type("width", 30, false, 2), true, "width", 3},
        {"the host keeps sizes", 400, 300, [](P &p) { p.resizingSupported = false; }, false, "scale", 1}};
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        const Answer answer = ask(row.width, row.height, row.prefer);
        EXPECT_EQ(answer.enabled, row.enabled);
        EXPECT_EQ(answer.mode, QString::fromLatin1(row.mode));
        EXPECT_NEAR(answer.scale, row.scale, 0.005);
        EXPECT_EQ(answer.entry[QStringLiteral("width")].toInt(), std::lround(row.width * answer.scale));
    }
}

TEST(SizeAdvice, ResolutionAndUnits) {
    EngineInput input;
    input.resolution = 300;
    input.resolutionUnit = 2;
    const Answer own = ask(900, 600, type("width", 10, false, 3), input);
    EXPECT_NEAR(own.scale, 10 * 300 / 2.54 / 900, 0.01);
    EXPECT_EQ(own.entry[QStringLiteral("resolution")].toDouble(), 300);
    EXPECT_EQ(own.entry[QStringLiteral("resolutionUnit")].toInt(), 2);
    const Answer set = ask(900, 600, [](P &p) { p.resolution = 150, p.resolutionUnit = 3; }, input);
    EXPECT_EQ(set.entry[QStringLiteral("resolution")].toDouble(), 150);
    EXPECT_EQ(set.entry[QStringLiteral("resolutionUnit")].toInt(), 3);
}

TEST(SizeAdvice, ModelsAndModerateFaults) {
    ImageStatistics s;
    s.width = 1000;
    s.height = 800;
    s.edgeShare = 0.05f;
    const auto ask = [&](const AutopilotOptions &options = {}) {
        return analyseImage({}, s, AdviceCase::shippedModels(), options, {}).settings;
    };
    const auto entry = [&](const char *category) { return ask()[QString::fromLatin1(category)].toMap(); };
    const QString model = QStringLiteral("model");
    EXPECT_EQ(entry("Enhance")[model], QStringLiteral("High Fidelity V2"));
    s.drawing = 0.3f;
    EXPECT_EQ(entry("Enhance")[model], QStringLiteral("CGI"));
    s.drawing = 0.05f;
    s.jpegQuality = 40;
    EXPECT_EQ(entry("Enhance")[model], QStringLiteral("Low Resolution"));
    EXPECT_NEAR(entry("Enhance")[QStringLiteral("param3")].toDouble(), 0.6, 0.01);
    s.jpegQuality = 95;
    s.noise.fill(6.0f / 255);
    EXPECT_EQ(entry("Enhance")[model], QStringLiteral("Standard V2"));
    EXPECT_NEAR(entry("Enhance")[QStringLiteral("param1")].toDouble(), 6.0 / 25, 0.01);
    EXPECT_FALSE(entry("Denoise")[QStringLiteral("enabled")].toBool());
    EXPECT_TRUE(entry("Denoise")[QStringLiteral("deselectedByUpscaling")].toBool());
    s.noise.fill(20.0f / 255);
    EXPECT_TRUE(entry("Denoise")[QStringLiteral("enabled")].toBool());
    EXPECT_FALSE(entry("Denoise").contains(QStringLiteral("deselectedByUpscaling")));
    EXPECT_NEAR(entry("Enhance")[QStringLiteral("param1")].toDouble(), 0.01, 1e-9);
    AutopilotOptions options;
    options.preferences.upscalingModel = QStringLiteral("CGI");
    options.preferences.denoiseLevels = {};
    options.preferences.upscalingParam1Strength = 0;
    const QVariantMap forced = ask(options)[QStringLiteral("Enhance")].toMap();
    EXPECT_EQ(forced[model], QStringLiteral("CGI"));
    EXPECT_NEAR(forced[QStringLiteral("param1")].toDouble(), 0.4 * 20 / 25, 0.01);
}
