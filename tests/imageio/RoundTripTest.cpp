#include "TestFiles.h"

#include <QDateTime>
#include <QThread>

#include <gtest/gtest.h>

#include <map>

using namespace testio;

namespace {

constexpr double Exact = 200;

struct Row {
    const char *name;
    const char *file;
    QVariantMap options;
    int bits;
    bool alpha;
    bool profile;
    int bitsRead;
    bool alphaRead;
    bool profileRead;
    double leastPsnr;
};

QVariantMap tiff(const char *compression, int bits) {
    return {{QStringLiteral("compression"), QString::fromLatin1(compression)},
            {QStringLiteral("oiio:BitsPerSample"), bits},
            {QStringLiteral("tiff:RowsPerStrip"), 1},
            {QStringLiteral("tiff:zipquality"), 4}};
}

QVariantMap png(int bits) {
    return {{QStringLiteral("png:compressionLevel"), 2},
            {QStringLiteral("compression"), QStringLiteral("huffman")},
            {QStringLiteral("oiio:BitsPerSample"), bits},
            {QStringLiteral("addToCollections"), QStringLiteral("true")}};
}

const QVariantMap Jpeg95 = {{QStringLiteral("Compression"), QStringLiteral("jpeg:95")}};

} // namespace

TEST(RoundTrip, PixelsDepthAlphaAndProfile) {
    const std::vector<Row> rows = {
        {"JPEG", "a.jpg", Jpeg95, 8, false, true, 8, false, true, 38},
        {"JPEG from 16 bit", "a.jpeg", Jpeg95, 16, false, false, 8, false, false, 38},
        {"PNG 8", "a.png", png(0), 8, false, true, 8, false, true, Exact},
        {"PNG 8 alpha", "a.png", png(0), 8, true, true, 8, true, true, Exact},
        {"PNG 16", "a.png", png(0), 16, false, true, 16, false, true, Exact},
        {"PNG 16 alpha", "a.png", png(16), 16, true, false, 16, true, false, Exact},
        {"PNG 16 to 8", "a.png", png(8), 16, false, true, 8, false, true, 55},
        {"PNG 8 to 16", "a.PNG", png(16), 8, false, false, 16, false, false, Exact},
        {"TIFF 8 LZW", "a.tif", tiff("lzw", 8), 8, false, true, 8, false, true, Exact},
        {"TIFF 16 zip", "a.tiff", tiff("zip", 16), 16, false, true, 16, false, true, Exact},
        {"TIFF 16 none alpha", "a.tif", tiff("none", 0), 16, true, true, 16, true, true, Exact},
        {"TIFF 8 zip alpha", "a.tif", tiff("zip", 8), 8, true, false, 8, true, false, Exact},
        {"TIFF no options", "a.tif", {}, 16, false, false, 16, false, false, Exact},
        {"WebP", "a.webp", {}, 8, false, true, 8, false, true, 34},
        {"WebP alpha", "a.webp", {}, 8, true, true, 8, true, true, 34},
        {"BMP", "a.bmp", {}, 8, false, false, 8, false, false, Exact},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        const Folder folder;
        const auto image =
            picture(97, 61, row.alpha ? 4 : 3, row.bits == 8 ? SampleType::UInt8 : SampleType::UInt16);
        if (row.profile)
            image->setIccProfile(wideProfile());
        const WriteResult written = write(image, folder(row.file), row.options);
        ASSERT_EQ(written.error.toStdString(), "");
        EXPECT_EQ(written.fileSize, QFileInfo(folder(row.file)).size());
        const ReadResult back = read(folder(row.file));
        ASSERT_EQ(back.error.toStdString(), "");
        EXPECT_EQ(back.image->bitDepth(), row.bitsRead);
        EXPECT_EQ(back.image->hasAlpha(), row.alphaRead);
        EXPECT_EQ(back.image->iccProfile(), row.profileRead ? wideProfile() : QByteArray());
        EXPECT_GE(psnr(*image, *back.image), row.leastPsnr);
        EXPECT_EQ(files().imageSize(folder(row.file)), QSize(97, 61));
        EXPECT_EQ(folder.entries().size(), 1);
    }
}

TEST(RoundTrip, TransparencyIsLaidOverWhiteWhereTheFormatHasNone) {
    for (const char *name : {"a.jpg", "a.bmp", "a.dng"}) {
        SCOPED_TRACE(name);
        const Folder folder;
        auto image = std::make_shared<ImageData>(32, 32, 4, SampleType::UInt8);
        for (int y = 0; y < 32; ++y) {
            for (int x = 0; x < 32; ++x) {
                static constexpr std::uint8_t HalfBlack[] = {0, 0, 0, 127};
                std::copy_n(HalfBlack, 4, image->samples<std::uint8_t>(y).begin() + x * 4);
            }
        }
        ASSERT_EQ(write(image, folder(name)).error.toStdString(), "");
        const ReadResult back = read(folder(name));
        ASSERT_TRUE(back.image) << back.error.toStdString();
        EXPECT_FALSE(back.image->hasAlpha());
        EXPECT_NEAR(valueAt(*back.image, 8, 8, 1), 128, 2);
    }
}

TEST(RoundTrip, SmallestPictureAndOddNames) {
    for (const char *name : {"1.jpg", "1.png", "1.tif", "1.webp", "1.bmp", "with space 'and\" quotes.png",
                             "line\nbreak.tif", "größe-图像.jpg"}) {
        SCOPED_TRACE(name);
        const Folder folder;
        const auto image = quarters(1, 1);
        ASSERT_EQ(write(image, folder(name)).error.toStdString(), "");
        const ReadResult back = read(folder(name));
        ASSERT_TRUE(back.image) << back.error.toStdString();
        EXPECT_EQ(back.image->width(), 1);
        EXPECT_EQ(colourAt(*back.image, 0, 0), "white");
    }
}

TEST(RoundTrip, AFormatThatCanOnlyBeReadIsSavedAsTiffBeside) {
    const Folder folder;
    setContents(folder("p.tif"), "someone else's");
    const auto image = picture(40, 30, 3, SampleType::UInt16);
    const WriteResult written = write(image, folder("p.HEIC"));
    EXPECT_EQ(written.error.toStdString(), "");
    EXPECT_EQ(written.outputPath, folder("p-1.tif"));
    EXPECT_EQ(psnr(*read(folder("p-1.tif")).image, *image), Exact);
    EXPECT_EQ(contents(folder("p.tif")), "someone else's");
}

TEST(RoundTrip, AnOutputWithoutExtensionKeepsTheInputsFormat) {
    const Folder folder;
    const auto image = quarters(32, 32);
    ASSERT_EQ(write(image, folder("in.png")).error.toStdString(), "");
    ASSERT_TRUE(QFile::rename(folder("in.png"), folder("in")));
    ASSERT_EQ(write(image, folder("in"), {}, {}, folder("in")).error.toStdString(), "");
    EXPECT_TRUE(contents(folder("in")).startsWith("\x89PNG"));
    EXPECT_NE(write(image, folder("out.xyz")).error, QString());
}

TEST(RoundTrip, SavingTwiceGivesTheSameBytes) {
    const Folder folder;
    const auto image = picture(300, 200, 3, SampleType::UInt8);
    const QVariantMap options = {{QStringLiteral("compression"), QStringLiteral("zip")}};
    std::map<std::string, QByteArray> before;
    for (const char *name : {"a.jpg", "a.png", "a.tif", "a.webp", "a.dng"}) {
        ASSERT_EQ(write(image, folder(name), options).error.toStdString(), "");
        before[name] = contents(folder(name));
    }
    // In another second: the time of saving must not be in the file.
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    while (QDateTime::currentSecsSinceEpoch() == now)
        QThread::msleep(10);
    for (const auto &[name, bytes] : before) {
        ASSERT_EQ(write(image, folder(name.c_str()), options).error.toStdString(), "");
        EXPECT_EQ(contents(folder(name.c_str())), bytes) << name;
    }
}

TEST(RoundTrip, FormatsOfThePhone) {
    struct Sample {
        const char *file;
        QSize size;
        QPoint red, blue, green;
    };
    const std::vector<Sample> samples = {
        {SAMPLES "/three-colours.heic", {48, 32}, {8, 6}, {40, 6}, {24, 26}},
        {SAMPLES "/three-colours-turned.avif", {32, 48}, {6, 40}, {6, 8}, {26, 24}},
    };
    for (const Sample &s : samples) {
        SCOPED_TRACE(s.file);
        const QString path = QString::fromUtf8(s.file);
        ASSERT_TRUE(files().formats().readable.contains(QFileInfo(path).suffix()));
        EXPECT_EQ(files().imageSize(path), s.size);
        const ReadResult back = read(path);
        ASSERT_TRUE(back.image) << back.error.toStdString();
        EXPECT_EQ(QSize(back.image->width(), back.image->height()), s.size);
        EXPECT_EQ(colourAt(*back.image, s.red.x(), s.red.y()), "red");
        EXPECT_EQ(colourAt(*back.image, s.blue.x(), s.blue.y()), "blue");
        EXPECT_EQ(colourAt(*back.image, s.green.x(), s.green.y()), "green");
    }
}
