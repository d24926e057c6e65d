#include "Harness.h"
#include "NetworkFolder.h"

#include <QFile>

#include <cmath>

using namespace Qt::StringLiterals;

static const QVariantMap driven{{u"strength"_s, 0.6}, {u"deblur"_s, 0.3}};

/// With the halo that follows from a network's layers no tile shows; with a pixel block less one does.
TEST(Networks, HaloIsExact) {
    struct Row {
        const char *name;
        TinyOnnx::Shape shape;
        int shortfall;
        bool same;
    };
    const Row rows[] = {
        {"one block", {.channels = 8, .blocks = 1}, 0, true},
        {"deeper", {.channels = 16, .blocks = 3}, 0, true},
        {"odd channels, one condition", {.channels = 19, .blocks = 2, .conditions = 1}, 0, true},
        {"wide, six conditions", {.channels = 48, .blocks = 2, .conditions = 6}, 0, true},
        {"understated", {.channels = 16, .blocks = 1}, 4, false},
    };
    const auto image = Pictures::noisy(*Pictures::scene(90, 73, 3, SampleType::UInt16), 12);
    for (const Row &row : rows) {
        const NetworkFolder folder;
        folder.defineRestorer(u"Net"_s, row.shape, row.shortfall);
        const auto run = [&](int threads, int tileSide) {
            Engine engine({threads, tileSide, 0}, folder.path());
            const ProcResult result = engine.run(image, u"Denoise"_s, u"Net"_s, driven);
            EXPECT_TRUE(result.image) << row.name << ": " << result.error.toStdString();
            return result.image;
        };
        const auto whole = run(1, 4096);
        EXPECT_GT(Pictures::difference(*whole, *image), 0.5) << row.name;
        bool same = true;
        for (const auto &[threads, tileSide] : {std::pair(1, 23), std::pair(2, 40), std::pair(3, 61)})
            same = same && Pictures::mismatch(*run(threads, tileSide), *whole, 0, 0).empty();
        EXPECT_EQ(same, row.same) << row.name;
    }
}

/// A network that changes nothing gives every 16-bit value back, and half-covered pixels too.
TEST(Networks, NothingIsLostOnTheWay) {
    const NetworkFolder folder;
    folder.defineRestorer(u"Net"_s, {.change = 0});
    Engine engine({2, 70, 0}, folder.path());
    for (const int channels : {3, 4}) {
        const auto image =
            Pictures::make(256, 256, channels, SampleType::UInt16, [](int x, int y) -> Pictures::Pixel {
                const double v = (256 * y + x) / 65535.0;
                return {v, 1 - v, v, v};
            });
        const auto out = engine.run(image, u"Denoise"_s, u"Net"_s, driven).image;
        EXPECT_EQ(Pictures::mismatch(*out, *image, 0, 0), "") << channels;
    }
}

/// Whatever the scale and the steps that are there, a slope stays where it was.
TEST(Networks, EveryScaleKeepsItsPlace) {
    const NetworkFolder folder;
    folder.defineEnhancer(u"Both"_s, {.change = 0}, {2, 4});
    folder.defineEnhancer(u"Two"_s, {.change = 0}, {2});
    folder.defineEnhancer(u"All"_s, {.change = 0}, {4, 1, 2});
    Engine engine({2, 0, 0}, folder.path());
    const int side = 60;
    const auto slope = Pictures::make(side, side, 3, SampleType::UInt16, [](int x, int y) -> Pictures::Pixel {
        return {(x + 0.5) / side, (y + 0.5) / side, (x + y + 1) / (2.0 * side), 1};
    });
    for (const QString &model : {u"Both"_s, u"Two"_s, u"All"_s}) {
        for (const double scale : {0.2, 0.55, 1.0, 1.3, 2.0, 2.7, 4.0, 5.5, 6.0}) {
            QVariantMap params = driven;
            params[u"scale"_s] = scale;
            const ProcResult result = engine.run(slope, u"Enhance"_s, model, params);
            ASSERT_TRUE(result.image) << result.error.toStdString();
            const int out = result.image->width();
            ASSERT_EQ(out, std::lround(side * scale));
            const int edge = int(4 * scale) + 2; // the picture is mirrored at its edges
            for (int i = edge; i < out - edge; ++i) {
                EXPECT_NEAR(Pictures::sample(*result.image, i, out / 2, 0), (i + 0.5) / out, 1e-3) << scale;
                EXPECT_NEAR(Pictures::sample(*result.image, out / 2, i, 1), (i + 0.5) / out, 1e-3) << scale;
            }
        }
    }
}

/// The smallest step that reaches the size runs; below the input's own size, a network of step 1.
TEST(Networks, TheStepFitsTheScale) {
    const NetworkFolder folder;
    folder.defineEnhancer(u"Steps"_s, {}, {1, 2, 4});
    for (const int scale : {1, 2, 4})
        folder.defineEnhancer(u"Only%1"_s.arg(scale), {}, {scale});
    Engine engine({2, 0, 0}, folder.path());
    const auto image = Pictures::scene(50, 40);
    const std::pair<double, int> rows[] = {{0.4, 1}, {1, 1}, {1.01, 2}, {2, 2}, {2.5, 4}, {4, 4}, {6, 4}};
    for (const auto &[scale, step] : rows) {
        QVariantMap params = driven;
        params[u"scale"_s] = scale;
        const auto out = engine.run(image, u"Enhance"_s, u"Steps"_s, params).image;
        for (const int only : {1, 2, 4}) {
            const auto other = engine.run(image, u"Enhance"_s, u"Only%1"_s.arg(only), params).image;
            EXPECT_EQ(Pictures::mismatch(*out, *other, 0, 0).empty(), only == step) << scale << ' ' << only;
        }
    }
}

/// Its start-up chatter is kept from the user.
TEST(Networks, RuntimeIsQuiet) {
    const NetworkFolder folder;
    folder.defineRestorer(u"Net"_s, {});
    Engine engine({}, folder.path());
    EXPECT_EQ(engine.catalogue.size(), 1);
    EXPECT_EQ(cerrText().find("Schema error"), std::string::npos);
}
