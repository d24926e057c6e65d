#include "Harness.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>

using namespace Qt::StringLiterals;

namespace {

struct Format {
    const char *name;
    int channels;
    SampleType type;
};
constexpr Format formats[] = {{"rgb 8", 3, SampleType::UInt8},
                              {"rgba 8", 4, SampleType::UInt8},
                              {"rgb 16", 3, SampleType::UInt16},
                              {"rgba 16", 4, SampleType::UInt16}};

/// Every grey level and many colours, dark on the whole and with a cast.
std::shared_ptr<ImageData> swatches(const Format &format) {
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
    struct Row {
        const char *name;
        QString category;
        QVariantMap params;
        int direction; ///< of a dark picture's brightness
    };
    const Row rows[] = {
        {"brightened", u"Exposure Adjust"_s, {{u"param1"_s, 0.75}}, 1},
        {"intensified", u"Exposure Adjust"_s, {{u"param1"_s, -0.25}}, -1},
        {"warm", u"White Balance Adjust"_s, {{u"temperature"_s, 1.0}}, 0},
        {"cool, half", u"White Balance Adjust"_s, {{u"temperature"_s, 0.01}, {u"strength"_s, 0.5}}, 0},
    };
    Engine engine;
    for (const Row &row : rows) {
        for (const Format &format : formats) {
            SCOPED_TRACE(std::string(row.name) + ", " + format.name);
            const auto image = swatches(format);
            const ProcResult result = engine.run(image, row.category, {}, row.params);
            ASSERT_TRUE(result.image) << result.error.toStdString();
            std::map<std::array<double, 3>, std::array<double, 3>> seen;
            double shift = 0;
            for (int y = 0; y < 48; ++y) {
                for (int x = 0; x < 256; ++x) {
                    const auto in = colour(*image, x, y), out = colour(*result.image, x, y);
                    ASSERT_EQ(seen.try_emplace(in, out).first->second, out) << x << ' ' << y;
                    shift += out[1] - in[1];
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
            if (row.direction != 0) {
                EXPECT_GT(shift * row.direction, 0);
            }
        }
    }
}

/// Positive strengths bring dark and bright pictures towards the middle, negative ones away from it.
TEST(PointOperations, ExposureKnowsDarkFromBright) {
    Engine engine;
    const auto scene = Pictures::scene(96, 64);
    const auto mean = [](const ImageData &image) {
        double sum = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                sum += Pictures::sample(image, x, y, 1);
        return sum / (image.width() * image.height());
    };
    for (const double power : {2.2, 0.35}) {
        const auto image =
            Pictures::changed(*scene, [=](double v, int, int, int) { return std::pow(v, power); });
        const double sign = power > 1 ? 1 : -1;
        double before = -10;
        for (const double strength : {-0.25, 0.0, 0.25, 0.75}) {
            const double now =
                sign * mean(*engine.run(image, u"Exposure Adjust"_s, {}, {{u"param1"_s, strength}}).image);
            EXPECT_GT(now, before) << power << ' ' << strength;
            before = now;
        }
    }
}
