#include "Harness.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Case {
    const char *name;
    std::function<std::shared_ptr<ImageData>(const ImageData &)> damage;
    QString category;
    QString model;
    QVariantMap params;
    double gain; ///< decibels, at least
};

} // namespace

/// A filter at the strength that fits the damage brings the picture closer to what it was.
TEST(Quality, DamageIsUndone) {
    const Case cases[] = {
        {"light noise",
         [](auto &i) { return Pictures::noisy(i, 10); },
         u"Denoise"_s,
         u"Low Light Beta"_s,
         {{u"param1_normalv2"_s, 10.0 / 50}},
         4},
        {"noise",
         [](auto &i) { return Pictures::noisy(i, 25); },
         u"Denoise"_s,
         u"Severe Noise Beta"_s,
         {{u"param1_strongv2"_s, 25.0 / 75}},
         7},
        {"heavy noise",
         [](auto &i) { return Pictures::noisy(i, 45); },
         u"Denoise"_s,
         u"Severe Noise"_s,
         {{u"param1"_s, 0.45}, {u"param2"_s, 0.0}},
         7.5},
        {"RAW noise",
         [](auto &i) { return Pictures::noisy(i, 20); },
         u"RAW"_s,
         u"RAW Native"_s,
         {{u"param1_native"_s, 0.5}, {u"param2_native"_s, 0.0}},
         6},
        {"soft",
         [](auto &i) { return Pictures::blurred(i, 1.0); },
         u"Sharpen"_s,
         u"Sharpen Standard v2"_s,
         {{u"param2"_s, 0.5}, {u"param1"_s, 0.0}},
         2},
        {"softer",
         [](auto &i) { return Pictures::blurred(i, 1.5); },
         u"Sharpen"_s,
         u"Sharpen Strong"_s,
         {{u"param2"_s, 0.5}, {u"param1"_s, 0.0}},
         2},
        {"soft and noisy",
         [](auto &i) { return Pictures::noisy(*Pictures::blurred(i, 1.2), 3); },
         u"Sharpen"_s,
         u"Sharpen Standard v2"_s,
         {{u"param2"_s, 0.6}, {u"param1"_s, 0.2}},
         1},
        {"compressed",
         [](auto &i) { return Pictures::compressed(i, 30); },
         u"Enhance"_s,
         u"Standard V2"_s,
         {{u"param3"_s, 0.5}, {u"param1"_s, 0.0}, {u"param2"_s, 0.0}},
         0.5},
        {"dark",
         [](auto &i) { return Pictures::changed(i, [](double v, int, int, int) { return v * v; }); },
         u"Exposure Adjust"_s,
         {},
         {{u"param1"_s, 0.75}},
         2.5},
        {"yellow",
         [](auto &i) {
             return Pictures::changed(i, [](double v, int, int, int c) { return c == 2 ? 0.8 * v : v; });
         },
         u"White Balance Adjust"_s,
         {},
         {{u"temperature"_s, 0.5}},
         1},
    };
    Engine engine;
    const auto clean = Pictures::scene(224, 160);
    for (const Case &one : cases) {
        const auto damaged = one.damage(*clean);
        const ProcResult result = engine.run(damaged, one.category, one.model, one.params);
        ASSERT_TRUE(result.image) << one.name << ": " << result.error.toStdString();
        EXPECT_GT(Pictures::psnr(*clean, *result.image) - Pictures::psnr(*clean, *damaged), one.gain)
            << one.name;
    }
}

/// "Original detail" brings texture back and leaves flat areas clean.
TEST(Quality, OriginalDetailReturnsTexture) {
    Engine engine;
    const auto clean = Pictures::make(192, 96, 3, SampleType::UInt8, [](int x, int y) -> Pictures::Pixel {
        const double v = x < 96 ? 0.5 : 0.5 + 0.12 * ((x * 7919 + y * 104729 + x * y) % 17 - 8) / 8.0;
        return {v, v, v, 1};
    });
    const auto image = Pictures::noisy(*clean, 8);
    const auto run = [&](double detail) {
        return engine
            .run(image, u"Denoise"_s, u"Low Light Beta"_s,
                 {{u"param1_normalv2"_s, 0.6}, {u"recover_detail"_s, detail}})
            .image;
    };
    const auto spread = [](const ImageData &picture, int from) {
        double sum = 0;
        for (int y = 16; y < 80; ++y)
            for (int x = from; x < from + 50; ++x)
                sum +=
                    std::pow(Pictures::sample(picture, x, y, 1) - Pictures::sample(picture, x + 1, y, 1), 2);
        return sum;
    };
    const auto without = run(0), with = run(0.8);
    EXPECT_GT(spread(*with, 120), 1.5 * spread(*without, 120));
    EXPECT_LT(spread(*with, 20), 0.2 * spread(*image, 20));
}

/// No halos: beside a hard edge nothing leaves the range of the picture by more than a little.
TEST(Quality, EdgesGetNoHalos) {
    Engine engine;
    const auto edge = Pictures::blurred(*Pictures::make(96, 64, 3, SampleType::UInt8,
                                                        [](int x, int) -> Pictures::Pixel {
                                                            const double v = x < 48 ? 0.3 : 0.7;
                                                            return {v, v, v, 1};
                                                        }),
                                        1);
    for (const ModelCase &model : everyModel(engine.catalogue)) {
        if (model.category != u"Sharpen"_s && model.category != u"Enhance"_s)
            continue;
        QVariantMap params = model.params;
        params[u"param2"_s] = 1.0;
        const auto out = engine.run(edge, model.category, model.model, params).image;
        for (int x = 0; x < out->width(); ++x) {
            EXPECT_GT(Pictures::sample(*out, x, 20, 1), 0.3 - 0.15) << model.label() << ' ' << x;
            EXPECT_LT(Pictures::sample(*out, x, 20, 1), 0.7 + 0.15) << model.label() << ' ' << x;
        }
    }
}
