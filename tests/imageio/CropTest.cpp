#include "TestFiles.h"

#include <QRectF>

#include <gtest/gtest.h>

#include <cmath>

using namespace testio;

namespace {

QVariantMap crop(const QVariant &rect, double rotation) {
    return {{QStringLiteral("cropRect"), rect}, {QStringLiteral("rotation"), rotation}};
}

ReadResult saved(const ImageRef &image, const QVariantMap &imageData) {
    const Folder folder;
    EXPECT_EQ(write(image, folder("a.png"), {}, imageData).error.toStdString(), "");
    return read(folder("a.png"));
}

/// The part of an image from (left, top).
std::shared_ptr<ImageData> part(const ImageData &image, int left, int top, int width, int height) {
    auto result = std::make_shared<ImageData>(width, height, 3, SampleType::UInt8);
    for (int y = 0; y < height; ++y) {
        const auto from =
            image.samples<std::uint8_t>(top + y).subspan(std::size_t(left) * 3, std::size_t(width) * 3);
        std::ranges::copy(from, result->samples<std::uint8_t>(y).begin());
    }
    return result;
}

} // namespace

TEST(Crop, WithoutRotation) {
    const auto image = picture(200, 120, 3, SampleType::UInt8);
    struct Row {
        const char *name;
        QVariant rect;
        QRect expected;
    };
    const std::vector<Row> rows = {
        {"none", {}, {0, 0, 200, 120}},
        {"part of a full picture", QRect(30, 20, 100, 50), {30, 20, 100, 50}},
        {"fractions of a pixel", QRectF(30.4, 19.6, 100.3, 49.8), {30, 20, 100, 50}},
        {"the picture is the crop already", QRect(500, 300, 200, 120), {0, 0, 200, 120}},
        {"whole in fractions", QRectF(0, 0, 1, 1), {0, 0, 200, 120}},
        {"part in fractions", QRectF(0.5, 0.5, 0.5, 0.25), {100, 60, 100, 30}},
        {"over the edge", QRect(150, 100, 100, 50), {150, 100, 50, 20}},
        {"outside", QRect(1000, 1000, 10, 10), {0, 0, 200, 120}},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        const ReadResult back = saved(image, crop(row.rect, 0));
        ASSERT_TRUE(back.image);
        const QRect e = row.expected;
        EXPECT_EQ(psnr(*back.image, *part(*image, e.x(), e.y(), e.width(), e.height())), 200);
    }
}

TEST(Crop, QuarterTurnsMoveCornersCounterClockwise) {
    // A crop frame turned counter-clockwise shows its content turned clockwise.
    const ReadResult back = saved(quarters(60, 60), crop(QRect(0, 0, 60, 60), M_PI / 2));
    ASSERT_TRUE(back.image);
    EXPECT_EQ(colourAt(*back.image, 5, 5), "blue");
    EXPECT_EQ(colourAt(*back.image, 55, 5), "red");
    EXPECT_EQ(colourAt(*back.image, 5, 55), "white");
    EXPECT_EQ(colourAt(*back.image, 55, 55), "green");
}

TEST(Crop, RotatedFromTheFullPictureAndFromItsBoxAgree) {
    const auto image = picture(400, 300, 3, SampleType::UInt8);
    const double angle = 0.3;
    const QRect rect(120, 90, 140, 100);
    const ReadResult fromFull = saved(image, crop(rect, angle));
    ASSERT_TRUE(fromFull.image);
    EXPECT_EQ(QSize(fromFull.image->width(), fromFull.image->height()), rect.size());

    const double boxWidth = 140 * std::cos(angle) + 100 * std::sin(angle);
    const double boxHeight = 140 * std::sin(angle) + 100 * std::cos(angle);
    const int left = int(std::floor(190 - boxWidth / 2));
    const int top = int(std::floor(140 - boxHeight / 2));
    const auto box = part(*image, left, top, int(std::ceil(boxWidth)), int(std::ceil(boxHeight)));
    const ReadResult fromBox = saved(box, crop(rect, angle));
    ASSERT_TRUE(fromBox.image);
    EXPECT_GT(psnr(*fromFull.image, *fromBox.image), 40);
}
