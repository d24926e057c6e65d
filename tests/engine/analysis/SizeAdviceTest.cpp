#include "AdviceCase.h"

#include <functional>

using namespace AdviceCase;

namespace {

using P = Autopilot::Preferences;

/// A picture of this size with nothing measured in it.
Case ask(int width, int height, const std::function<void(P &)> &prefer = {}, const EngineInput &input = {}) {
    Case c;
    c.statistics = {};
    c.statistics.width = width;
    c.statistics.height = height;
    c.input = input;
    if (prefer)
        prefer(c.preferences());
    return c;
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
    const Row rows[] = {
        {"small picture, as far as 12 megapixels", 2000, 1500, {}, true, "scale", 2},
        {"tiny picture, four times at most", 400, 300, {}, true, "scale", 4},
        {"five megapixels: half as much again", 2600, 2000, {}, true, "scale", 1.51},
        {"six megapixels are enough", 3000, 2000, {}, false, "scale", 2},
        {"an icon", 24, 24, {}, false, "scale", 2},
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
        const Case c = ask(row.width, row.height, row.prefer);
        EXPECT_EQ(c.enabled("Enhance"), row.enabled);
        EXPECT_EQ(c.entry("Enhance")[words("mode")], words(row.mode));
        EXPECT_NEAR(c.number("Enhance", "scale"), row.scale, 0.005);
        EXPECT_EQ(c.number("Enhance", "width"), std::lround(row.width * c.number("Enhance", "scale")));
    }
}

TEST(SizeAdvice, ResolutionAndUnits) {
    EngineInput input;
    input.resolution = 300;
    input.resolutionUnit = 2;
    const Case own = ask(900, 600, type("width", 10, false, 3), input);
    EXPECT_NEAR(own.number("Enhance", "scale"), 10 * 300 / 2.54 / 900, 0.01);
    EXPECT_EQ(own.number("Enhance", "resolution"), 300);
    EXPECT_EQ(own.number("Enhance", "resolutionUnit"), 2);
    const Case set = ask(900, 600, [](P &p) { p.resolution = 150, p.resolutionUnit = 3; }, input);
    EXPECT_EQ(set.number("Enhance", "resolution"), 150);
    EXPECT_EQ(set.number("Enhance", "resolutionUnit"), 3);
}

TEST(SizeAdvice, ModelsAndModerateFaults) {
    Case c = ask(1000, 800);
    ImageStatistics &s = c.statistics;
    s.edgeShare = 0.05f;
    EXPECT_EQ(c.model("Enhance"), words("High Fidelity V2"));
    s.drawing = 0.3f;
    EXPECT_EQ(c.model("Enhance"), words("CGI"));
    s.drawing = 0.05f;
    s.jpegQuality = 40;
    EXPECT_EQ(c.model("Enhance"), words("Low Resolution"));
    EXPECT_NEAR(c.number("Enhance", "param3"), 0.6, 0.01);
    s.jpegQuality = 95;
    s.noise.fill(6.0f / 255);
    EXPECT_EQ(c.model("Enhance"), words("Standard V2"));
    EXPECT_NEAR(c.number("Enhance", "param1"), 6.0 / 25, 0.01);
    EXPECT_FALSE(c.enabled("Denoise"));
    EXPECT_TRUE(c.entry("Denoise")[words("deselectedByUpscaling")].toBool());
    s.noise.fill(20.0f / 255);
    EXPECT_TRUE(c.enabled("Denoise"));
    EXPECT_FALSE(c.entry("Denoise").contains(words("deselectedByUpscaling")));
    EXPECT_NEAR(c.number("Enhance", "param1"), 0.01, 1e-9);
    c.preferences().upscalingModel = words("CGI");
    c.preferences().denoiseLevels = {};
    c.preferences().upscalingParam1Strength = 0;
    EXPECT_EQ(c.model("Enhance"), words("CGI"));
    EXPECT_NEAR(c.number("Enhance", "param1"), 0.4 * 20 / 25, 0.01);
}
