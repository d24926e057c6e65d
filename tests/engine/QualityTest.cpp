#include "Harness.h"

#include <QImage>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The middle of a photograph, reduced by half, where nothing of its own noise and compression is
/// left: blur and compression are undone by what networks learned from photographs. Null where the
/// package mate-backgrounds isn't installed.
std::shared_ptr<ImageData> photograph(int width, int height) {
    const QImage file(u"/usr/share/backgrounds/mate/nature/Garden.jpg"_s);
    if (file.isNull())
        return nullptr;
    const QImage half = file.scaled(file.size() / 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const QPoint corner((half.width() - width) / 2, (half.height() - height) / 2);
    return Pictures::make(width, height, 3, SampleType::UInt8, [&](int x, int y) -> Pictures::Pixel {
        const QColor colour = half.pixelColor(corner + QPoint(x, y));
        return {double(colour.redF()), double(colour.greenF()), double(colour.blueF()), 1};
    });
}

struct Case {
    const char *name;
    bool onPhotograph;
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
         false,
         [](auto &i) { return Pictures::noisy(i, 10); },
         u"Denoise"_s,
         u"Low Light Beta"_s,
         {{u"param1_normalv2"_s, 10.0 / 50}},
         4},
        {"noise",
         false,
         [](auto &i) { return Pictures::noisy(i, 25); },
         u"Denoise"_s,
         u"Severe Noise Beta"_s,
         {{u"param1_strongv2"_s, 25.0 / 75}},
         7},
        {"heavy noise",
         false,
         [](auto &i) { return Pictures::noisy(i, 45); },
         u"Denoise"_s,
         u"Severe Noise"_s,
         {{u"param1"_s, 0.45}, {u"param2"_s, 0.0}},
         7.5},
        {"RAW noise",
         false,
         [](auto &i) { return Pictures::noisy(i, 20); },
         u"RAW"_s,
         u"RAW Native"_s,
         {{u"param1_native"_s, 0.5}, {u"param2_native"_s, 0.0}},
         6},
        {"soft",
         true,
         [](auto &i) { return Pictures::noisy(*Pictures::blurred(i, 1.3), 2); },
         u"Sharpen"_s,
         u"Sharpen Standard v2"_s,
         {{u"param2"_s, 0.65}, {u"param1"_s, 0.0}},
         2},
        {"softer",
         true,
         [](auto &i) { return Pictures::blurred(i, 1.5); },
         u"Sharpen"_s,
         u"Sharpen Strong"_s,
         {{u"param2"_s, 0.5}, {u"param1"_s, 0.0}},
         2},
        {"lens blur",
         true,
         [](auto &i) { return Pictures::blurred(i, 2.2); },
         u"Sharpen"_s,
         u"Sharpen Standard"_s,
         {{u"param2"_s, 0.55}, {u"param1"_s, 0.0}, {u"isLens"_s, true}},
         1},
        {"soft and noisy",
         true,
         [](auto &i) { return Pictures::noisy(*Pictures::blurred(i, 1.2), 3); },
         u"Sharpen"_s,
         u"Sharpen Standard v2"_s,
         {{u"param2"_s, 0.6}, {u"param1"_s, 0.2}},
         1},
        {"compressed",
         true,
         [](auto &i) { return Pictures::compressed(i, 30); },
         u"Enhance"_s,
         u"Standard V2"_s,
         {{u"param3"_s, 0.5}, {u"param1"_s, 0.0}, {u"param2"_s, 0.0}},
         0.5},
        {"dark",
         false,
         [](auto &i) { return Pictures::changed(i, [](double v, int, int, int) { return v * v; }); },
         u"Exposure Adjust"_s,
         {},
         {{u"param1"_s, 0.75}},
         2.5},
        {"yellow",
         false,
         [](auto &i) {
             return Pictures::changed(i, [](double v, int, int, int c) { return c == 2 ? 0.8 * v : v; });
         },
         u"White Balance Adjust"_s,
         {},
         {{u"temperature"_s, 0.5}},
         1},
    };
    Engine engine;
    const auto scene = Pictures::scene(224, 160), photo = photograph(224, 160);
    for (const Case &one : cases) {
        const auto clean = one.onPhotograph ? photo : scene;
        if (!clean)
            continue;
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
