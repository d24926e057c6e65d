#include "Harness.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(Size, WhatTheSettingsAskFor) {
    struct Row {
        const char *name;
        QVariantMap params;
        int width, height;
    };
    const Row rows[] = {
        {"scale", {{u"scale"_s, 2.5}}, 250, 150},
        {"scale as text", {{u"scale"_s, u"2"_s}}, 200, 120},
        {"reduction", {{u"mode"_s, u"scale"_s}, {u"scale"_s, 0.33}}, 33, 20},
        {"nothing", {}, 100, 60},
        {"too large", {{u"scale"_s, 99}}, 600, 360},
        {"too small", {{u"scale"_s, 0.01}}, 20, 12},
        {"nonsense", {{u"scale"_s, u"big"_s}}, 100, 60},
        {"width alone", {{u"mode"_s, u"width"_s}, {u"width"_s, 350}}, 350, 210},
        {"width, untouched scale", {{u"mode"_s, u"width"_s}, {u"width"_s, 50}, {u"scale"_s, 1}}, 50, 30},
        {"width, all in step",
         {{u"mode"_s, u"width"_s}, {u"width"_s, 200}, {u"height"_s, 120}, {u"scale"_s, 2.0}},
         200,
         120},
        {"width of a crop",
         {{u"mode"_s, u"width"_s}, {u"width"_s, 100}, {u"height"_s, 60}, {u"scale"_s, 2.0}},
         200,
         120},
        {"width that the scale can't give",
         {{u"mode"_s, u"width"_s}, {u"width"_s, 400}, {u"scale"_s, 2.0}},
         400,
         240},
        {"height", {{u"mode"_s, u"height"_s}, {u"height"_s, 90}, {u"width"_s, 7}}, 150, 90},
        {"height missing", {{u"mode"_s, u"height"_s}, {u"scale"_s, 2}}, 200, 120},
    };
    Engine engine;
    const auto image = Pictures::scene(100, 60);
    for (const Row &row : rows) {
        const ProcResult result = engine.run(image, u"Enhance"_s, u"Standard"_s, row.params);
        ASSERT_TRUE(result.image) << row.name << result.error.toStdString();
        EXPECT_EQ(result.image->width(), row.width) << row.name;
        EXPECT_EQ(result.image->height(), row.height) << row.name;
        EXPECT_NEAR(result.scale, row.width / 100.0, 0.01) << row.name;
    }
    const auto strip = Pictures::scene(8000, 2);
    EXPECT_EQ(engine.run(strip, u"Enhance"_s, u"Standard"_s, {{u"scale"_s, 6}}).image->width(), 32000);
}

/// Fine stripes turn to grey, not to coarse stripes, when a picture is reduced.
TEST(Size, ReductionsDoNotAlias) {
    Engine engine;
    const auto stripes = Pictures::make(240, 60, 3, SampleType::UInt8, [](int x, int) -> Pictures::Pixel {
        const double v = x % 2 ? 0.9 : 0.1;
        return {v, v, v, 1};
    });
    for (const ModelCase &model : everyModel(engine.catalogue)) {
        if (model.category != u"Enhance"_s)
            continue;
        const auto out = engine
                             .run(stripes, model.category, model.model,
                                  {{u"scale"_s, 0.3}, {u"param1"_s, 0}, {u"param2"_s, 0}, {u"param3"_s, 0}})
                             .image;
        for (int x = 3; x < out->width() - 3; ++x)
            EXPECT_NEAR(Pictures::sample(*out, x, 9, 0), 0.5, 0.03) << model.label() << ' ' << x;
    }
}

/// Alpha follows the size, and the colour behind transparent pixels doesn't show at the rim.
TEST(Size, AlphaIsResizedWithThePicture) {
    Engine engine;
    const auto cutOut = Pictures::make(64, 64, 4, SampleType::UInt8, [](int x, int) -> Pictures::Pixel {
        return x < 32 ? Pictures::Pixel{0.2, 0.8, 0.2, 1} : Pictures::Pixel{1, 0, 1, 0};
    });
    const auto out = engine.run(cutOut, u"Enhance"_s, u"High Fidelity"_s, {{u"scale"_s, 3}}).image;
    ASSERT_EQ(out->width(), 192);
    EXPECT_EQ(Pictures::sample(*out, 30, 90, 3), 1);
    EXPECT_EQ(Pictures::sample(*out, 160, 90, 3), 0);
    for (int x = 60; x < 97; ++x) {
        if (Pictures::sample(*out, x, 90, 3) > 0.2) {
            EXPECT_NEAR(Pictures::sample(*out, x, 90, 0), 0.2, 0.06) << x;
        }
    }
}
