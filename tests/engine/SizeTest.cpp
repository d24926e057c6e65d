#include "Harness.h"

using namespace Qt::StringLiterals;

TEST(Size, WhatTheSettingsAskFor) {
    struct Row {
        const char *name, *mode;
        QVariant scale, width, height;
        QSize size;
    };
    const QVariant none;
    const Row rows[] = {
        {"scale", "", 2.5, none, none, {250, 150}},
        {"scale as text", "", u"2"_s, none, none, {200, 120}},
        {"reduction", "scale", 0.33, none, none, {33, 20}},
        {"nothing", "", none, none, none, {100, 60}},
        {"too large", "", 99, none, none, {600, 360}},
        {"too small", "", 0.01, none, none, {20, 12}},
        {"nonsense", "", u"big"_s, none, none, {100, 60}},
        {"no such mode", "widht", 2, 400, none, {200, 120}},
        {"width alone", "width", none, 350, none, {350, 210}},
        {"smaller width, larger height", "width", none, 50, 300, {50, 30}},
        {"width, untouched scale", "width", 1, 50, none, {50, 30}},
        {"width, all in step", "width", 2.0, 200, 120, {200, 120}},
        {"width of a crop", "width", 2.0, 100, 60, {200, 120}},
        {"width that the scale can't give", "width", 2.0, 400, none, {400, 240}},
        {"height", "height", none, 7, 90, {150, 90}},
        {"height missing", "height", 2, none, none, {200, 120}},
    };
    Engine engine;
    const auto image = Pictures::scene(100, 60);
    for (const Row &row : rows) {
        QVariantMap params{{u"mode"_s, QLatin1String(row.mode)}};
        for (const auto &[key, value] : {std::pair(u"scale"_s, row.scale), std::pair(u"width"_s, row.width),
                                         std::pair(u"height"_s, row.height)})
            if (value.isValid())
                params[key] = value;
        const ProcResult result = engine.run(image, u"Enhance"_s, u"Standard"_s, params);
        ASSERT_TRUE(result.image) << row.name << result.error.toStdString();
        EXPECT_EQ(QSize(result.image->width(), result.image->height()), row.size) << row.name;
        EXPECT_NEAR(result.scale, row.size.width() / 100.0, 0.01) << row.name;
    }
    const auto strip = Pictures::scene(8000, 2);
    EXPECT_EQ(engine.run(strip, u"Enhance"_s, u"Standard"_s, {{u"scale"_s, 6}}).image->width(), 32000);
}

/// Fine stripes turn to grey, not to coarse stripes, when a picture is reduced.
TEST(Size, ReductionsDoNotAlias) {
    Engine engine;
    const auto stripes = Pictures::grey(240, 60, [](int x, int) { return x % 2 ? 0.9 : 0.1; });
    const QVariantMap params{{u"scale"_s, 0.3}, {u"param1"_s, 0}, {u"param2"_s, 0}, {u"param3"_s, 0}};
    for (const ModelCase &model : everyModel(engine.catalogue)) {
        if (model.category != u"Enhance"_s)
            continue;
        const auto out = engine.run(stripes, model.category, model.model, params).image;
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
