#include "TestFiles.h"

#include <gtest/gtest.h>

using namespace testio;

namespace {

/// Colours of the corners as shown, reading order, when red, green, blue, white are stored.
struct Row {
    int orientation;
    bool turned;
    std::array<const char *, 4> corners;
};

// EXIF: 1 as stored, 2 mirrored, 3 half turn, 4 flipped, 5 transposed, 6 to be turned clockwise,
// 7 transposed over the other diagonal, 8 to be turned counter-clockwise.
constexpr std::array Rows = {
    Row{1, false, {"red", "green", "blue", "white"}}, Row{2, false, {"green", "red", "white", "blue"}},
    Row{3, false, {"white", "blue", "green", "red"}}, Row{4, false, {"blue", "white", "red", "green"}},
    Row{5, true, {"red", "blue", "green", "white"}},  Row{6, true, {"blue", "red", "white", "green"}},
    Row{7, true, {"white", "green", "blue", "red"}},  Row{8, true, {"green", "white", "red", "blue"}},
};

std::array<std::string, 4> corners(const ImageData &image) {
    const int right = image.width() - 4;
    const int bottom = image.height() - 4;
    return {colourAt(image, 3, 3), colourAt(image, right, 3), colourAt(image, 3, bottom),
            colourAt(image, right, bottom)};
}

} // namespace

TEST(Orientation, EveryPictureStandsUprightAndIsSavedSo) {
    for (const char *name : {"a.jpg", "a.tif", "a.png", "a.webp"}) {
        for (const Row &row : Rows) {
            SCOPED_TRACE(std::string(name) + " " + std::to_string(row.orientation));
            const Folder folder;
            const QSize shown = row.turned ? QSize(40, 64) : QSize(64, 40);
            const std::array<std::string, 4> expected = {row.corners[0], row.corners[1], row.corners[2],
                                                         row.corners[3]};
            ASSERT_EQ(write(quarters(64, 40), folder(name)).error.toStdString(), "");
            setExif(folder(name), "Exif.Image.Orientation", std::to_string(row.orientation));
            EXPECT_EQ(files().imageSize(folder(name)), shown);
            const ReadResult first = read(folder(name));
            ASSERT_TRUE(first.image) << first.error.toStdString();
            EXPECT_EQ(QSize(first.image->width(), first.image->height()), shown);
            EXPECT_EQ(corners(*first.image), expected);
            EXPECT_EQ(first.metadata.value(QStringLiteral("orientation")).toInt(), row.orientation);

            ASSERT_EQ(write(first.image, folder(name), {}, {}, folder(name)).error.toStdString(), "");
            const ReadResult second = read(folder(name));
            ASSERT_TRUE(second.image) << second.error.toStdString();
            EXPECT_EQ(corners(*second.image), expected);
            EXPECT_EQ(second.metadata.value(QStringLiteral("orientation")).toInt(), 1);
        }
    }
}
