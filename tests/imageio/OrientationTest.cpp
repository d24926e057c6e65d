#include "TestFiles.h"

using namespace testio;

TEST(Orientation, EveryPictureStandsUprightAndIsSavedSo) {
    // 1 as stored, 2 mirrored, 3 half turn, 4 flipped, 5 transposed, 6 to be turned clockwise, 7 transposed
    // over the other diagonal, 8 to be turned counter-clockwise.
    const Corners shownCorners[] = {
        {"red", "green", "blue", "white"}, {"green", "red", "white", "blue"},
        {"white", "blue", "green", "red"}, {"blue", "white", "red", "green"},
        {"red", "blue", "green", "white"}, {"blue", "red", "white", "green"},
        {"white", "green", "blue", "red"}, {"green", "white", "red", "blue"},
    };
    for (const char *name : {"a.jpg", "a.tif", "a.png", "a.webp"}) {
        for (int orientation = 1; orientation <= 8; ++orientation) {
            SCOPED_TRACE(std::string(name) + " " + std::to_string(orientation));
            const Folder folder;
            const QSize shown = orientation > 4 ? QSize(40, 64) : QSize(64, 40);
            const Corners &expected = shownCorners[orientation - 1];
            mustWrite(quarters(64, 40), folder(name));
            setExif(folder(name), "Exif.Image.Orientation", std::to_string(orientation));
            EXPECT_EQ(files().imageSize(folder(name)), shown);
            const ReadResult first = mustRead(folder(name));
            EXPECT_EQ(sizeOf(*first.image), shown);
            EXPECT_EQ(corners(*first.image), expected);
            EXPECT_EQ(first.metadata.value(u"orientation"_s).toInt(), orientation);

            mustWrite(first.image, folder(name), {}, folder(name));
            const ReadResult second = mustRead(folder(name));
            EXPECT_EQ(corners(*second.image), expected);
            EXPECT_EQ(second.metadata.value(u"orientation"_s).toInt(), 1);
        }
    }
}
