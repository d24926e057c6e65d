#include "Harness.h"

#include <utility>

using namespace Qt::StringLiterals;
using Pictures::mismatch;

namespace {

EngineOptions cut(int threads, int tileSide) {
    return {threads, tileSide, std::size_t(64) << 20};
}

/// The whole picture as one tile.
Engine &uncut() {
    static Engine engine(cut(1, 4096));
    return engine;
}

Engine &smallTiles() {
    static Engine engine(cut(3, 53));
    return engine;
}

} // namespace

/// Whatever the tiles, the threads and the region: the same picture. Each model in the format that shows the
/// smallest difference, the first of each category in all of them.
TEST(SameEverywhere, EveryModel) {
    Engine &one = uncut(), &many = smallTiles();
    QString category;
    for (const ModelCase &model : everyModel(one.catalogue)) {
        const bool first = std::exchange(category, model.category) != model.category;
        for (const Pictures::Format &format : Pictures::formats) {
            if (!first && &format != &Pictures::formats[3])
                continue;
            SCOPED_TRACE(std::string(format.name) + ", " + model.label());
            const auto image = Pictures::noisy(*Pictures::scene(97, 73, format.channels, format.type), 6);
            const ProcResult whole = one.run(image, model.category, model.model, model.params);
            ASSERT_TRUE(whole.image) << whole.error.toStdString();
            EXPECT_GT(whole.image->width() * whole.scale, 0);
            const ProcResult tiled = many.run(image, model.category, model.model, model.params);
            EXPECT_EQ(mismatch(*tiled.image, *whole.image, 0, 0), "");
            for (const QRect &region : {QRect(37, 23, 31, 29), QRect(80, 66, 17, 7)}) {
                const ProcResult part = many.run(image, model.category, model.model, model.params, region);
                ASSERT_TRUE(part.image);
                EXPECT_EQ(part.region, region);
                const int x = int(double(region.x()) * whole.image->width() / image->width() + 0.5);
                const int y = int(double(region.y()) * whole.image->height() / image->height() + 0.5);
                EXPECT_EQ(mismatch(*part.image, *whole.image, x, y), "") << "region at " << region.x();
            }
        }
    }
}

/// Filters behind a change of size, small pictures, and reductions.
TEST(SameEverywhere, Stacks) {
    for (const auto &[name, width, height, scale] :
         {std::tuple("enlarged", 61, 46, 2.3), std::tuple("reduced", 121, 95, 0.37),
          std::tuple("smaller than a halo", 9, 5, 3.0), std::tuple("one pixel", 1, 1, 1.0)}) {
        SCOPED_TRACE(name);
        const auto image = Pictures::noisy(*Pictures::scene(width, height, 4), 10);
        ProcRequest request = Engine::request(image);
        Engine::add(request, u"Denoise"_s, u"Denoise"_s, u"Severe Noise"_s,
                    {{u"param1"_s, 0.3}, {u"param2"_s, 0.5}});
        Engine::add(request, u"Enhance"_s, u"Enhance"_s, u"Standard V2"_s,
                    {{u"scale"_s, scale}, {u"param2"_s, 0.4}});
        Engine::add(request, u"Sharpen2"_s, u"Sharpen"_s, u"Sharpen Strong"_s, {{u"param2"_s, 0.5}});
        const ProcResult whole = uncut().run(request);
        ASSERT_TRUE(whole.image) << whole.error.toStdString();
        EXPECT_EQ(mismatch(*smallTiles().run(request).image, *whole.image, 0, 0), "");
        request.region = QRect(width / 3, height / 4, std::max(1, width / 2), std::max(1, height / 2));
        request.full = false;
        const ProcResult part = shippedEngine().run(request);
        const int x = int(double(request.region.x()) * whole.image->width() / width + 0.5);
        const int y = int(double(request.region.y()) * whole.image->height() / height + 0.5);
        EXPECT_EQ(mismatch(*part.image, *whole.image, x, y), "");
    }
}

/// An 8-bit picture gives what the same picture in 16 bit gives, rounded.
TEST(SameEverywhere, DepthsAgree) {
    Engine &engine = shippedEngine();
    const auto shallow = Pictures::noisy(*Pictures::scene(48, 40), 4);
    const auto deep = Pictures::make(48, 40, 3, SampleType::UInt16, [&](int x, int y) {
        return Pictures::Pixel{Pictures::sample(*shallow, x, y, 0), Pictures::sample(*shallow, x, y, 1),
                               Pictures::sample(*shallow, x, y, 2), 1};
    });
    for (const ModelCase &model : everyModel(engine.catalogue)) {
        const ProcResult a = engine.run(shallow, model.category, model.model, model.params);
        const ProcResult b = engine.run(deep, model.category, model.model, model.params);
        EXPECT_EQ(a.image->type(), SampleType::UInt8);
        EXPECT_EQ(b.image->type(), SampleType::UInt16);
        EXPECT_LE(Pictures::difference(*a.image, *b.image), 0.5) << model.label();
    }
}
