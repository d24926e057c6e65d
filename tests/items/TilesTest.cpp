#include "items/PreviewGeometry.h"
#include "items/TileRenderer.h"

#include <gtest/gtest.h>

#include <numbers>

namespace {

std::shared_ptr<ImageData> gradient(int width, int height, int channels, SampleType type) {
    auto image = std::make_shared<ImageData>(width, height, channels, type);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width * channels; ++x) {
            const int value = (x * 7 + y * 13) % 256;
            if (type == SampleType::UInt8)
                image->samples<quint8>(y)[std::size_t(x)] = quint8(value);
            else
                image->samples<quint16>(y)[std::size_t(x)] = quint16(value * 257);
        }
    }
    return image;
}

QColor at(const QImage &tile, int x, int y) {
    return tile.pixelColor(x + TileBorder, y + TileBorder);
}

TEST(TileGrid, LevelsAndTilesOfAPicture) {
    struct Row {
        const char *name;
        QSize size;
        double zoom;
        int level;
        QRectF visible;
        std::size_t tiles;
    };
    const std::vector<Row> rows = {
        {"one pixel", {1, 1}, 8, 0, {0, 0, 1, 1}, 1},
        {"whole at 1:1", {1024, 1024}, 1, 0, {0, 0, 1024, 1024}, 4},
        {"enlarged", {1024, 1024}, 4, 0, {500, 500, 20, 20}, 4},
        {"just below half", {4096, 4096}, 0.49, 1, {0, 0, 4096, 4096}, 16},
        {"exactly half", {4096, 4096}, 0.5, 1, {0, 0, 1024, 1024}, 1},
        {"nothing in sight", {4096, 4096}, 1, 0, {5000, 0, 10, 10}, 0},
        {"no zoom yet", {4096, 2048}, 0, 3, {0, 0, 4096, 2048}, 1},
        {"100 megapixels fitted", {12000, 8400}, 0.09, 3, {0, 0, 12000, 8400}, 9},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        const TileGrid grid(row.size);
        const int level = grid.levelFor(row.zoom);
        EXPECT_EQ(level, row.level);
        const auto tiles = grid.tilesIn(row.visible, level);
        EXPECT_EQ(tiles.size(), row.tiles);
        QRectF covered;
        for (const TileKey &key : tiles)
            covered |= grid.tileInPicture(key);
        EXPECT_TRUE(tiles.empty() || covered.contains(row.visible));
    }
}

TEST(TileRenderer, EveryFormatGivesTheMeanOfItsPixels) {
    for (const SampleType type : {SampleType::UInt8, SampleType::UInt16}) {
        for (const int channels : {3, 4}) {
            SCOPED_TRACE(testing::Message() << channels << " channels, type " << int(type));
            const auto image = gradient(1100, 7, channels, type);
            const QImage full = renderTile(*image, {0, 1, 0}, QColorSpace::SRgb);
            ASSERT_EQ(full.size(), QSize(512 + 2, 7 + 2));
            const auto sample = [&](int x, int y, int c) {
                return type == SampleType::UInt8
                           ? image->samples<quint8>(y)[std::size_t(x * channels + c)]
                           : image->samples<quint16>(y)[std::size_t(x * channels + c)] / 257;
            };
            if (channels == 3) {
                EXPECT_EQ(at(full, 5, 3).red(), sample(517, 3, 0));
                EXPECT_EQ(at(full, -1, 3).green(), sample(511, 3, 1)) << "the border is the neighbour's";
                EXPECT_EQ(at(full, 0, -1).blue(), sample(512, 0, 2)) << "or the edge's own";
                const QImage half = renderTile(*image, {1, 0, 0}, QColorSpace::SRgb);
                const int mean =
                    (sample(8, 2, 0) + sample(9, 2, 0) + sample(8, 3, 0) + sample(9, 3, 0) + 2) / 4;
                EXPECT_NEAR(at(half, 4, 1).red(), mean, 1);
            } else {
                EXPECT_NEAR(at(full, 5, 3).alpha(), sample(517, 3, 3), 1);
                EXPECT_EQ(full.format(), QImage::Format_RGBA8888_Premultiplied);
            }
        }
    }
}

TEST(TileRenderer, PicturesAreShownInTheirOwnColours) {
    auto image = std::make_shared<ImageData>(4, 4, 3, SampleType::UInt8);
    for (int y = 0; y < 4; ++y) {
        std::ranges::fill(image->samples<quint8>(y), quint8(128));
        image->samples<quint8>(y)[1] = 255;
    }
    const QColor plain = at(renderTile(*image, {0, 0, 0}, QColorSpace::SRgb), 0, 0);
    image->setIccProfile(QColorSpace(QColorSpace::AdobeRgb).iccProfile());
    const QColor converted = at(renderTile(*image, {0, 0, 0}, QColorSpace::SRgb), 0, 0);
    EXPECT_EQ(plain.red(), 128);
    EXPECT_LT(converted.red(), 40) << "a wide green has little red on the screen";
    EXPECT_EQ(at(renderTile(*image, {0, 0, 0}, QColorSpace()), 0, 0), plain) << "taken for sRGB";
    image->setIccProfile("not a profile");
    EXPECT_EQ(at(renderTile(*image, {0, 0, 0}, QColorSpace::SRgb), 0, 0), plain);
}

TEST(PreviewGeometry, PixelsLandInTheItem) {
    struct Row {
        const char *name;
        PreviewGeometry geometry;
        QPointF pixel;
        QPointF item;
    };
    constexpr double Quarter = std::numbers::pi / 2;
    const std::vector<Row> rows = {
        {"whole", {{100, 50}, {1000, 500}, {0, 0, 1, 1}, 0, {}, {1000, 500}}, {1000, 250}, {100, 25}},
        {"crop", {{100, 50}, {1000, 500}, {0.5, 0.5, 0.5, 0.5}, 0, {}, {1000, 500}}, {500, 250}, {0, 0}},
        {"region of a result",
         {{100, 50}, {1000, 500}, {0, 0, 1, 1}, 0, {200, 100, 400, 200}, {400, 200}},
         {0, 0},
         {20, 10}},
        {"enlarged result",
         {{100, 50}, {2000, 1000}, {0, 0, 1, 1}, 0, {400, 200, 800, 400}, {800, 400}},
         {800, 400},
         {60, 30}},
        {"a quarter clockwise",
         {{100, 100}, {100, 100}, {0, 0, 1, 1}, Quarter, {}, {100, 100}},
         {0, 0},
         {100, 0}},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        const QPointF mapped = row.geometry.pixelsToItem().map(row.pixel);
        EXPECT_NEAR(mapped.x(), row.item.x(), 1e-6);
        EXPECT_NEAR(mapped.y(), row.item.y(), 1e-6);
    }
}

} // namespace
