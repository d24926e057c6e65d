#include "TestFiles.h"

#include <QImage>

#include <gtest/gtest.h>

using namespace testio;

TEST(Estimate, IsNearTheSizeThatIsWritten) {
    const auto image = picture(900, 1600, 3, SampleType::UInt8);
    for (const char *extension : {"jpg", "png", "tif", "webp", "bmp", "dng"}) {
        SCOPED_TRACE(extension);
        const Folder folder;
        const QString path = folder("a.") + QString::fromLatin1(extension);
        WriteRequest request;
        request.image = image;
        request.options = {{QStringLiteral("compression"), QStringLiteral("zip")}};
        const WriteResult estimate = files().estimate(request, QString::fromLatin1(extension), {});
        EXPECT_EQ(estimate.error.toStdString(), "");
        const WriteResult written = write(image, path, request.options);
        EXPECT_NEAR(double(estimate.fileSize), double(written.fileSize), double(written.fileSize) * 0.15);
    }
    EXPECT_NE(files().estimate({}, QStringLiteral("jpg"), {}).error, QString());
}

TEST(Thumbnail, IsSmallUprightAndSrgb) {
    struct Row {
        const char *source;
        const char *target;
        const char *orientation;
        QSize size;
    };
    const std::vector<Row> rows = {
        {"a.jpg", "t.jpg", "1", {256, 128}}, {"a.jpg", "t.png", "6", {128, 256}},
        {"a.png", "t.jpg", "1", {256, 128}}, {"a.tif", "t.png", "8", {128, 256}},
        {"a.dng", "t.jpg", "1", {256, 128}},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(std::string(row.source) + " to " + row.target);
        const Folder folder;
        auto image = quarters(2400, 1200);
        image->setIccProfile(wideProfile());
        ASSERT_EQ(write(image, folder(row.source)).error.toStdString(), "");
        if (*row.orientation != '1')
            setExif(folder(row.source), "Exif.Image.Orientation", row.orientation);
        const WriteResult result = files().writeThumbnail(folder(row.source), folder(row.target), 256, {});
        ASSERT_EQ(result.error.toStdString(), "");
        const QImage shown(folder(row.target));
        EXPECT_EQ(shown.size(), row.size);
        const bool turned = *row.orientation != '1';
        const QColor corner = shown.pixelColor(shown.width() - 9, 9);
        EXPECT_TRUE(turned || (corner.green() > 200 && corner.red() < 90)) << corner.name().toStdString();
    }
    const Folder folder;
    EXPECT_NE(files().writeThumbnail(folder("missing.jpg"), folder("t.jpg"), 256, {}).error, QString());
    EXPECT_EQ(folder.entries().size(), 0);
}
