#include "TestFiles.h"

#include <QDateTime>
#include <QThread>

#include <map>

using namespace testio;

namespace {

constexpr double Exact = 200;

struct Row {
    const char *name, *file;
    QVariantMap options;
    int bits, bitsRead;
    bool alpha, profile;
    double leastPsnr;
};

QVariantMap tiff(const char *compression, int bits) {
    return {{u"compression"_s, QString::fromLatin1(compression)},
            {u"oiio:BitsPerSample"_s, bits},
            {u"tiff:RowsPerStrip"_s, 1},
            {u"tiff:zipquality"_s, 4}};
}

QVariantMap png(int bits) {
    return {{u"png:compressionLevel"_s, 2},
            {u"compression"_s, u"huffman"_s},
            {u"oiio:BitsPerSample"_s, bits},
            {u"addToCollections"_s, u"true"_s}};
}

const QVariantMap Jpeg95 = {{u"Compression"_s, u"jpeg:95"_s}};

} // namespace

TEST(RoundTrip, PixelsDepthAlphaAndProfile) {
    const std::vector<Row> rows = {
        {"JPEG", "a.jpg", Jpeg95, 8, 8, false, true, 38},
        {"JPEG from 16 bit", "a.jpeg", Jpeg95, 16, 8, false, false, 38},
        {"PNG 8", "a.png", png(0), 8, 8, false, true, Exact},
        {"PNG 8 alpha", "a.png", png(0), 8, 8, true, true, Exact},
        {"PNG 16", "a.png", png(0), 16, 16, false, true, Exact},
        {"PNG 16 alpha", "a.png", png(16), 16, 16, true, false, Exact},
        {"PNG 16 to 8", "a.png", png(8), 16, 8, false, true, 55},
        {"PNG 8 to 16", "a.PNG", png(16), 8, 16, false, false, Exact},
        {"TIFF 8 LZW", "a.tif", tiff("lzw", 8), 8, 8, false, true, Exact},
        {"TIFF 16 zip", "a.tiff", tiff("zip", 16), 16, 16, false, true, Exact},
        {"TIFF 16 none alpha", "a.tif", tiff("none", 0), 16, 16, true, true, Exact},
        {"TIFF 8 zip alpha", "a.tif", tiff("zip", 8), 8, 8, true, false, Exact},
        {"TIFF no options", "a.tif", {}, 16, 16, false, false, Exact},
        {"WebP", "a.webp", {}, 8, 8, false, true, 34},
        {"WebP alpha", "a.webp", {}, 8, 8, true, true, 34},
        {"BMP", "a.bmp", {}, 8, 8, false, false, Exact},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.name);
        const Folder folder;
        const SampleType type = row.bits == 8 ? SampleType::UInt8 : SampleType::UInt16;
        const auto image = picture(97, 61, row.alpha ? 4 : 3, type);
        if (row.profile)
            image->setIccProfile(wideProfile());
        const WriteResult written = write(image, folder(row.file), row.options);
        ASSERT_EQ(written.error.toStdString(), "");
        EXPECT_EQ(written.fileSize, QFileInfo(folder(row.file)).size());
        const ReadResult back = read(folder(row.file));
        ASSERT_EQ(back.error.toStdString(), "");
        EXPECT_EQ(back.image->bitDepth(), row.bitsRead);
        EXPECT_EQ(back.image->hasAlpha(), row.alpha);
        EXPECT_EQ(back.image->iccProfile(), row.profile ? wideProfile() : QByteArray());
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
        for (int i = 0; i < 32 * 32; ++i) {
            static constexpr std::uint8_t HalfBlack[] = {0, 0, 0, 127};
            std::copy_n(HalfBlack, 4, image->samples<std::uint8_t>(i / 32).begin() + i % 32 * 4);
        }
        mustWrite(image, folder(name));
        const ReadResult back = mustRead(folder(name));
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
        mustWrite(image, folder(name));
        const ReadResult back = mustRead(folder(name));
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
    mustWrite(image, folder("in.png"));
    ASSERT_TRUE(QFile::rename(folder("in.png"), folder("in")));
    mustWrite(image, folder("in"), {}, folder("in"));
    EXPECT_TRUE(contents(folder("in")).startsWith("\x89PNG"));
    EXPECT_NE(write(image, folder("out.xyz")).error, QString());
}

TEST(RoundTrip, SavingTwiceGivesTheSameBytes) {
    const Folder folder;
    const auto image = picture(300, 200);
    const QVariantMap options = {{u"compression"_s, u"zip"_s}};
    std::map<std::string, QByteArray> before;
    for (const char *name : {"a.jpg", "a.png", "a.tif", "a.webp", "a.dng"}) {
        mustWrite(image, folder(name), options);
        before[name] = contents(folder(name));
    }
    // In another second: the time of saving must not be in the file.
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    while (QDateTime::currentSecsSinceEpoch() == now)
        QThread::msleep(10);
    for (const auto &[name, bytes] : before) {
        mustWrite(image, folder(name.c_str()), options);
        EXPECT_EQ(contents(folder(name.c_str())), bytes) << name;
    }
}

TEST(RoundTrip, FormatsOfThePhone) {
    struct {
        const char *file;
        QSize size;
        QPoint red, blue, green;
    } const samples[] = {
        {SAMPLES "/three-colours.heic", {48, 32}, {8, 6}, {40, 6}, {24, 26}},
        {SAMPLES "/three-colours-turned.avif", {32, 48}, {6, 40}, {6, 8}, {26, 24}},
    };
    for (const auto &s : samples) {
        SCOPED_TRACE(s.file);
        const QString path = QString::fromUtf8(s.file);
        ASSERT_TRUE(files().formats().readable.contains(QFileInfo(path).suffix()));
        EXPECT_EQ(files().imageSize(path), s.size);
        const ReadResult back = mustRead(path);
        EXPECT_EQ(sizeOf(*back.image), s.size);
        EXPECT_EQ(colourAt(*back.image, s.red.x(), s.red.y()), "red");
        EXPECT_EQ(colourAt(*back.image, s.blue.x(), s.blue.y()), "blue");
        EXPECT_EQ(colourAt(*back.image, s.green.x(), s.green.y()), "green");
    }
}
