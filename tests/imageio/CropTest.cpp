#include "TestFiles.h"

#include <QRectF>

#include <cmath>

using namespace testio;

namespace {

QVariantMap crop(const QVariant &rect, double rotation) {
    return {{u"cropRect"_s, rect}, {u"rotation"_s, rotation}};
}

ReadResult saved(const ImageRef &image, const QVariantMap &imageData) {
    const Folder folder;
    EXPECT_EQ(write(image, folder("a.png"), {}, imageData).error.toStdString(), "");
    return mustRead(folder("a.png"));
}

std::shared_ptr<ImageData> part(const ImageData &image, const QRect &area) {
    auto result = std::make_shared<ImageData>(area.width(), area.height(), 3, SampleType::UInt8);
    for (int y = 0; y < area.height(); ++y) {
        const auto row = image.samples<std::uint8_t>(area.y() + y);
        std::copy_n(row.begin() + 3 * area.x(), 3 * area.width(), result->samples<std::uint8_t>(y).begin());
    }
    return result;
}

} // namespace

TEST(Crop, WithoutRotation) {
    const auto image = picture(200, 120);
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
        EXPECT_EQ(psnr(*back.image, *part(*image, row.expected)), 200);
    }
}

TEST(Crop, QuarterTurnsMoveCornersCounterClockwise) {
    // A crop frame turned counter-clockwise shows its content turned clockwise.
    const ReadResult back = saved(quarters(60, 60), crop(QRect(0, 0, 60, 60), M_PI / 2));
    EXPECT_EQ(corners(*back.image), (Corners{"blue", "red", "white", "green"}));
}

TEST(Crop, RotatedFromTheFullPictureAndFromItsBoxAgree) {
    const auto image = picture(400, 300);
    const double angle = 0.3;
    const QRect rect(120, 90, 140, 100);
    const ReadResult fromFull = saved(image, crop(rect, angle));
    EXPECT_EQ(sizeOf(*fromFull.image), rect.size());

    const double boxWidth = 140 * std::cos(angle) + 100 * std::sin(angle);
    const double boxHeight = 140 * std::sin(angle) + 100 * std::cos(angle);
    const QRect box(int(std::floor(190 - boxWidth / 2)), int(std::floor(140 - boxHeight / 2)),
                    int(std::ceil(boxWidth)), int(std::ceil(boxHeight)));
    const ReadResult fromBox = saved(part(*image, box), crop(rect, angle));
    EXPECT_GT(psnr(*fromFull.image, *fromBox.image), 40);
}
