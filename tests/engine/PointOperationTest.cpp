#include "Harness.h"

#include <cmath>
#include <limits>
#include <map>

using namespace Qt::StringLiterals;

namespace {

/// Every grey level and many colours, dark on the whole and with a cast.
std::shared_ptr<ImageData> swatches(const Pictures::Format &format) {
    return Pictures::make(256, 48, format.channels, format.type, [](int x, int y) -> Pictures::Pixel {
        const double v = x / 255.0;
        if (y < 4)
            return {v, v, v, 1};
        return {v * v, std::pow(v, 2.3), std::pow(v, 2.0 + (y % 9) * 0.1), x % 3 / 2.0};
    });
}

std::array<double, 3> colour(const ImageData &image, int x, int y) {
    return {Pictures::sample(image, x, y, 0), Pictures::sample(image, x, y, 1),
            Pictures::sample(image, x, y, 2)};
}

} // namespace

/// What happens to a pixel depends on the pixel alone; greys keep their order, black and white stay,
/// nothing clips, alpha is untouched.
TEST(PointOperations, Table) {
    const std::tuple<const char *, QString, QVariantMap> rows[] = {
        {"brightened", u"Exposure Adjust"_s, {{u"param1"_s, 0.75}}},
        {"intensified", u"Exposure Adjust"_s, {{u"param1"_s, -0.25}}},
        {"warm", u"White Balance Adjust"_s, {{u"temperature"_s, 1.0}}},
        {"cool, half", u"White Balance Adjust"_s, {{u"temperature"_s, 0.01}, {u"strength"_s, 0.5}}},
    };
    Engine &engine = shippedEngine();
    for (const auto &[name, category, params] : rows) {
        for (const Pictures::Format &format : Pictures::formats) {
            SCOPED_TRACE(std::string(name) + ", " + format.name);
            const auto image = swatches(format);
            const ProcResult result = engine.run(image, category, {}, params);
            ASSERT_TRUE(result.image) << result.error.toStdString();
            std::map<std::array<double, 3>, std::array<double, 3>> seen;
            for (int y = 0; y < 48; ++y) {
                for (int x = 0; x < 256; ++x) {
                    const auto in = colour(*image, x, y), out = colour(*result.image, x, y);
                    ASSERT_EQ(seen.try_emplace(in, out).first->second, out) << x << ' ' << y;
                    for (std::size_t c = 0; c < 3; ++c) {
                        if (y == 0 && x > 0) {
                            ASSERT_GE(out[c], colour(*result.image, x - 1, y)[c]);
                        }
                        if (in[c] < 0.99) {
                            ASSERT_LT(out[c], 1) << "clipped at " << x << ' ' << y;
                        }
                    }
                    if (format.channels == 4) {
                        ASSERT_EQ(Pictures::sample(*result.image, x, y, 3),
                                  Pictures::sample(*image, x, y, 3));
                    }
                }
            }
            EXPECT_EQ(colour(*result.image, 0, 0), (std::array<double, 3>{0, 0, 0}));
            EXPECT_EQ(colour(*result.image, 255, 0), (std::array<double, 3>{1, 1, 1}));
        }
    }
}

/// Positive strengths bring dark and bright pictures towards the middle, negative ones away from it;
/// temperature runs from cool to warm through the neutral correction.
TEST(PointOperations, SlidersGoTheirWay) {
    using Means = std::array<double, 3>;
    struct Row {
        const char *name;
        double power; ///< that darkens or brightens the scene
        QString category, parameter;
        std::vector<double> values;
        double (*measure)(const Means &);
    };
    const std::vector<double> exposures{-0.25, 0, 0.25, 0.75}, temperatures{0.01, 0.25, 0.5, 0.75, 1};
    const Row rows[] = {
        {"dark", 2.2, u"Exposure Adjust"_s, u"param1"_s, exposures, [](const Means &m) { return m[1]; }},
        {"bright", 0.35, u"Exposure Adjust"_s, u"param1"_s, exposures, [](const Means &m) { return -m[1]; }},
        {"warmth", 1, u"White Balance Adjust"_s, u"temperature"_s, temperatures,
         [](const Means &m) { return m[0] / m[2]; }},
    };
    Engine &engine = shippedEngine();
    const auto scene = Pictures::scene(96, 64);
    for (const Row &row : rows) {
        const auto image =
            Pictures::changed(*scene, [&](double v, int, int, int) { return std::pow(v, row.power); });
        double before = -std::numeric_limits<double>::max();
        for (const double value : row.values) {
            const auto out = engine.run(image, row.category, {}, {{row.parameter, value}}).image;
            Means sums{};
            for (int y = 0; y < out->height(); ++y)
                for (int x = 0; x < out->width(); ++x)
                    for (std::size_t c = 0; c < 3; ++c)
                        sums[c] += colour(*out, x, y)[c];
            EXPECT_GT(row.measure(sums), before) << row.name << ' ' << value;
            before = row.measure(sums);
        }
    }
}
