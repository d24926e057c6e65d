#include "Harness.h"

#include <cmath>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

/// The middle of a photograph, reduced by half, where nothing of its own noise and compression is
/// left. Null where the package mate-backgrounds, which the tests need, isn't installed.
std::shared_ptr<ImageData> photograph(int width, int height) {
    const QImage file(u"/usr/share/backgrounds/mate/nature/Garden.jpg"_s);
    if (file.isNull())
        throw std::runtime_error("the package mate-backgrounds is missing");
    const QImage half = file.scaled(file.size() / 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const QPoint corner((half.width() - width) / 2, (half.height() - height) / 2);
    return Pictures::fromImage(half, QRect(corner, QSize(width, height)));
}

using Damage = std::function<std::shared_ptr<ImageData>(const ImageData &)>;

Damage noise(double deviation) {
    return [=](const ImageData &i) { return Pictures::noisy(i, deviation); };
}

Damage blur(double sigma, double noise = 0) {
    return [=](const ImageData &i) { return Pictures::noisy(*Pictures::blurred(i, sigma), noise); };
}

Damage tone(double power, double blue) {
    return [=](const ImageData &i) {
        return Pictures::changed(
            i, [=](double v, int, int, int c) { return std::pow(v, power) * (c == 2 ? blue : 1); });
    };
}

/// Blur and compression are undone by what was learned from photographs.
enum Subject { Drawing, Photograph };

struct Case {
    const char *name;
    Subject subject;
    Damage damage;
    const char *category, *model;
    QVariantMap params;
    double gain; ///< decibels, at least
};

} // namespace

/// A filter at the strength that fits the damage brings the picture closer to what it was.
TEST(Quality, DamageIsUndone) {
    const Damage jpeg = [](auto &i) { return Pictures::compressed(i, 25); };
    const QVariantMap lens{{u"param2"_s, 0.55}, {u"isLens"_s, true}},
        both{{u"param2"_s, 0.6}, {u"param1"_s, 0.2}};
    const Case cases[] = {
        {"light noise", Drawing, noise(10), "Denoise", "Low Light Beta", {{u"param1_normalv2"_s, 0.2}}, 4},
        {"noise", Drawing, noise(25), "Denoise", "Severe Noise Beta", {{u"param1_strongv2"_s, 0.33}}, 7},
        {"heavy noise", Drawing, noise(45), "Denoise", "Severe Noise", {{u"param1"_s, 0.45}}, 7.5},
        {"RAW noise", Drawing, noise(20), "RAW", "RAW Native", {{u"param1_native"_s, 0.5}}, 6},
        {"soft", Photograph, blur(1.3, 2), "Sharpen", "Sharpen Standard v2", {{u"param2"_s, 0.65}}, 2},
        {"softer", Photograph, blur(1.5), "Sharpen", "Sharpen Strong", {{u"param2"_s, 0.5}}, 2},
        {"lens blur", Photograph, blur(2.2), "Sharpen", "Sharpen Standard", lens, 1},
        {"soft and noisy", Photograph, blur(1.2, 3), "Sharpen", "Sharpen Standard v2", both, 1},
        {"compressed", Photograph, jpeg, "Enhance", "Standard V2", {{u"param3"_s, 0.8}}, 0.5},
        {"dark", Drawing, tone(2, 1), "Exposure Adjust", "", {{u"param1"_s, 0.75}}, 2.5},
        {"yellow", Drawing, tone(1, 0.8), "White Balance Adjust", "", {{u"temperature"_s, 0.5}}, 1},
    };
    Engine &engine = shippedEngine();
    const auto scene = Pictures::scene(224, 160), photo = photograph(224, 160);
    ASSERT_TRUE(photo);
    for (const Case &one : cases) {
        const auto clean = one.subject == Photograph ? photo : scene;
        const auto damaged = one.damage(*clean);
        const ProcResult result =
            engine.run(damaged, QLatin1String(one.category), QLatin1String(one.model), one.params);
        ASSERT_TRUE(result.image) << one.name << ": " << result.error.toStdString();
        const double gain = Pictures::psnr(*clean, *result.image) - Pictures::psnr(*clean, *damaged);
        EXPECT_GT(gain, one.gain) << one.name;
    }
}

/// "Original detail" brings texture back and leaves flat areas clean.
TEST(Quality, OriginalDetailReturnsTexture) {
    Engine &engine = shippedEngine();
    const auto clean = Pictures::grey(192, 96, [](int x, int y) {
        return x < 96 ? 0.5 : 0.5 + 0.12 * ((x * 7919 + y * 104729 + x * y) % 17 - 8) / 8.0;
    });
    const auto image = Pictures::noisy(*clean, 8);
    const auto run = [&](double detail) {
        const QVariantMap params{{u"param1_normalv2"_s, 0.6}, {u"recover_detail"_s, detail}};
        return engine.run(image, u"Denoise"_s, u"Low Light Beta"_s, params).image;
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
    Engine &engine = shippedEngine();
    const auto sharp = Pictures::grey(64, 32, [](int x, int) { return x < 32 ? 0.3 : 0.7; });
    const auto edge = Pictures::blurred(*sharp, 1);
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

/// Lone bright spots go from a denoised camera file; what a photograph shows, a line or an edge as well,
/// stays.
TEST(Quality, HotPixelsAreCorrectedOnRequest) {
    const auto scene = Pictures::scene(192, 160, 3, SampleType::UInt16);
    const auto spots = [](int x, int y) { return x % 24 == 7 && y % 20 == 11; };
    const auto hot = Pictures::changed(*scene, [&](double v, int x, int y, int c) {
        return spots(x, y) && c != 1 ? std::min(1.0, v + 0.6) : v;
    });
    Engine engine;
    const auto run = [&](const ImageRef &image, bool correct, bool raw) {
        ProcRequest request = Engine::request(image);
        Engine::add(request, u"RAW"_s, u"RAW"_s, u"RAW Standard"_s, {});
        request.hotPixelCorrection = correct;
        request.input.isRaw = raw;
        return engine.run(request).image;
    };
    const auto clean = run(scene, false, true), before = run(hot, false, true), after = run(hot, true, true);
    // Spots in texture or beside an edge may be part of the picture and stay.
    double heightBefore = 0, heightAfter = 0;
    for (int y = 11; y < 160; y += 20)
        for (int x = 7; x < 192; x += 24) {
            const double wanted = Pictures::sample(*clean, x, y, 0);
            heightBefore += Pictures::sample(*before, x, y, 0) - wanted;
            heightAfter += Pictures::sample(*after, x, y, 0) - wanted;
        }
    EXPECT_LT(heightAfter, 0.6 * heightBefore);
    EXPECT_LT(Pictures::difference(*after, *clean), 0.7 * Pictures::difference(*before, *clean));
    EXPECT_LT(Pictures::difference(*run(scene, true, true), *clean), 0.25) << "fine texture mostly stays";
    EXPECT_EQ(Pictures::mismatch(*run(hot, true, false), *before, 0, 0), "") << "other files are left alone";
}
