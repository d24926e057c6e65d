#include "TestFiles.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace testio;

namespace {

constexpr std::array<std::array<float, 3>, 4> Scene = {
    {{0.18f, 0.18f, 0.18f}, {0.6f, 0.1f, 0.05f}, {0.05f, 0.2f, 0.5f}, {0.9f, 0.9f, 0.9f}}};

double encoded(double linear) {
    return 255 * (linear <= 0.0031308 ? 12.92 * linear : 1.055 * std::pow(linear, 1 / 2.4) - 0.055);
}

/// A picture without the extremes that no display-referred space can pass through.
QVariantMap dngOptions(bool compressed) {
    return {{QStringLiteral("compressed"), compressed ? QStringLiteral("1") : QStringLiteral("0")}};
}

} // namespace

TEST(Raw, SensorDataDevelopsToTheColoursOfTheScene) {
    const Folder folder;
    writeBayerDng(folder("a.dng"), Scene);
    EXPECT_EQ(files().imageSize(folder("a.dng")), QSize(96, 64));
    const ReadResult raw = read(folder("a.dng"));
    ASSERT_TRUE(raw.image) << raw.error.toStdString();
    EXPECT_EQ(raw.image->bitDepth(), 16);
    EXPECT_TRUE(raw.metadata.value(QStringLiteral("isRaw")).toBool());
    EXPECT_EQ(raw.metadata.value(QStringLiteral("model")).toString().toStdString(), "Model One");
    constexpr std::array<QPoint, 4> Centres = {QPoint(24, 16), QPoint(72, 16), QPoint(24, 48),
                                               QPoint(72, 48)};
    for (std::size_t q = 0; q < 4; ++q) {
        for (int c = 0; c < 3; ++c)
            EXPECT_NEAR(valueAt(*raw.image, Centres[q].x(), Centres[q].y(), c),
                        encoded(double(Scene[q][std::size_t(c)])), 1.5)
                << q << " " << c;
    }
}

TEST(Raw, ALinearDngShowsThePictureItWasMadeFrom) {
    for (const bool compressed : {false, true}) {
        for (const SampleType type : {SampleType::UInt8, SampleType::UInt16}) {
            // Larger than a tile in both directions, and no multiple of one.
            const auto image = picture(611, 333, 3, type);
            const Folder folder;
            const WriteResult written = write(image, folder("a.dng"), dngOptions(compressed));
            ASSERT_EQ(written.error.toStdString(), "");
            EXPECT_EQ(files().imageSize(folder("a.dng")), QSize(611, 333));
            const ReadResult back = read(folder("a.dng"));
            ASSERT_TRUE(back.image) << back.error.toStdString();
            EXPECT_GT(psnr(*back.image, *image), type == SampleType::UInt8 ? 50 : 60);
            EXPECT_TRUE(back.metadata.value(QStringLiteral("isRaw")).toBool());
        }
    }
}

TEST(Raw, CompressionSavesSpaceOnAFlatPicture) {
    const Folder folder;
    ASSERT_EQ(write(quarters(611, 333), folder("a.dng"), dngOptions(true)).error.toStdString(), "");
    EXPECT_LT(QFileInfo(folder("a.dng")).size(), 611 * 333 * 6 / 4);
}

TEST(Raw, ADarkPictureStaysDarkWhateverCameraTookIt) {
    for (const char *make : {"Canon", "NIKON CORPORATION", "SONY", "FUJIFILM", "OLYMPUS CORPORATION",
                             "Panasonic", "Leica Camera AG", "PENTAX"}) {
        SCOPED_TRACE(make);
        const Folder folder;
        auto image = picture(200, 100, 3, SampleType::UInt16);
        for (int y = 0; y < image->height(); ++y) {
            for (std::uint16_t &v : image->samples<std::uint16_t>(y))
                v = std::uint16_t(v / 3);
        }
        ASSERT_EQ(write(image, folder("in.jpg")).error.toStdString(), "");
        setExif(folder("in.jpg"), "Exif.Image.Make", make);
        setExif(folder("in.jpg"), "Exif.Image.Model", "EOS 5D");
        ASSERT_EQ(write(image, folder("a.dng"), {}, {}, folder("in.jpg")).error.toStdString(), "");
        const ReadResult back = read(folder("a.dng"));
        ASSERT_TRUE(back.image) << back.error.toStdString();
        EXPECT_GT(psnr(*back.image, *image), 60);
        EXPECT_EQ(back.metadata.value(QStringLiteral("make")).toString().toStdString(), make);
    }
}

TEST(Raw, ADamagedFileIsAnErrorAndNeverItsPreview) {
    const Folder folder;
    const auto image = picture(400, 300, 3, SampleType::UInt8);
    for (const bool compressed : {false, true}) {
        ASSERT_EQ(write(image, folder("whole.dng"), dngOptions(compressed)).error.toStdString(), "");
        const QByteArray bytes = contents(folder("whole.dng"));
        struct Row {
            const char *name;
            QByteArray bytes;
        };
        QByteArray holed = bytes;
        holed.replace(bytes.size() / 2, bytes.size() / 4, QByteArray(bytes.size() / 4, '\xff'));
        const std::vector<Row> rows = {{"half", bytes.first(bytes.size() / 2)},
                                       {"header", bytes.first(200)},
                                       {"not even the preview", bytes.first(64 * 1024)},
                                       {"few bytes", bytes.first(8)},
                                       {"hole", compressed ? holed : bytes.first(bytes.size() / 2)}};
        for (const Row &row : rows) {
            SCOPED_TRACE(row.name);
            for (const char *name : {"a.dng", "a.nef", "a.arw"}) {
                setContents(folder(name), row.bytes);
                const ReadResult back = read(folder(name));
                EXPECT_FALSE(back.image);
                EXPECT_NE(back.error.toStdString(), "");
            }
        }
    }
}
