#include "TestFiles.h"

#include <QImage>

using namespace testio;

TEST(Estimate, IsNearTheSizeThatIsWritten) {
    const auto image = picture(900, 1600);
    for (const char *extension : {"jpg", "png", "tif", "webp", "bmp", "dng"}) {
        SCOPED_TRACE(extension);
        const Folder folder;
        const QVariantMap options = {{u"compression"_s, u"zip"_s}};
        const WriteResult estimate =
            files().estimate({image, {}, {}, {}, options}, QString::fromLatin1(extension), {});
        EXPECT_EQ(estimate.error.toStdString(), "");
        const auto size = double(write(image, folder("a.") + QLatin1String(extension), options).fileSize);
        EXPECT_NEAR(double(estimate.fileSize), size, size * 0.15);
    }
    EXPECT_NE(files().estimate({}, u"jpg"_s, {}).error, QString());
}

TEST(Thumbnail, IsSmallUprightAndSrgb) {
    struct {
        const char *source, *target, *orientation;
        QSize size;
    } const rows[] = {
        {"a.jpg", "t.jpg", "1", {256, 128}}, {"a.jpg", "t.png", "6", {128, 256}},
        {"a.png", "t.jpg", "1", {256, 128}}, {"a.tif", "t.png", "8", {128, 256}},
        {"a.dng", "t.jpg", "1", {256, 128}},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(std::string(row.source) + " to " + row.target);
        const Folder folder;
        auto image = quarters(2400, 1200);
        image->setIccProfile(wideProfile());
        mustWrite(image, folder(row.source));
        const bool turned = *row.orientation != '1';
        if (turned)
            setExif(folder(row.source), "Exif.Image.Orientation", row.orientation);
        const WriteResult result = files().writeThumbnail(folder(row.source), folder(row.target), 256, {});
        ASSERT_EQ(result.error.toStdString(), "");
        const QImage shown(folder(row.target));
        EXPECT_EQ(shown.size(), row.size);
        const QColor corner = shown.pixelColor(shown.width() - 9, 9);
        EXPECT_TRUE(turned || (corner.green() > 200 && corner.red() < 90)) << corner.name().toStdString();
    }
    const Folder folder;
    EXPECT_NE(files().writeThumbnail(folder("missing.jpg"), folder("t.jpg"), 256, {}).error, QString());
    EXPECT_EQ(folder.entries().size(), 0);
}
