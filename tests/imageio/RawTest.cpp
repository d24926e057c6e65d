#include "TestFiles.h"

#include <cmath>

using namespace testio;

namespace {

constexpr std::array<std::array<float, 3>, 4> Scene = {
    {{0.18f, 0.18f, 0.18f}, {0.6f, 0.1f, 0.05f}, {0.05f, 0.2f, 0.5f}, {0.9f, 0.9f, 0.9f}}};

double encoded(double linear) {
    return 255 * (linear <= 0.0031308 ? 12.92 * linear : 1.055 * std::pow(linear, 1 / 2.4) - 0.055);
}

} // namespace

TEST(Raw, SensorDataDevelopsToTheColoursOfTheScene) {
    const Folder folder;
    writeBayerDng(folder("a.dng"), Scene);
    EXPECT_EQ(files().imageSize(folder("a.dng")), QSize(96, 64));
    const ReadResult raw = mustRead(folder("a.dng"));
    EXPECT_EQ(raw.image->bitDepth(), 16);
    EXPECT_TRUE(raw.metadata.value(u"isRaw"_s).toBool());
    EXPECT_EQ(raw.metadata.value(u"model"_s).toString().toStdString(), "Model One");
    for (std::size_t q = 0; q < 4; ++q) {
        for (int c = 0; c < 3; ++c)
            EXPECT_NEAR(valueAt(*raw.image, q % 2 ? 72 : 24, q < 2 ? 16 : 48, c),
                        encoded(double(Scene[q][std::size_t(c)])), 1.5)
                << q << " " << c;
    }
}

TEST(Raw, ALinearDngShowsThePictureItWasMadeFrom) {
    for (const QString &compressed : {u"0"_s, u"1"_s}) {
        for (const SampleType type : {SampleType::UInt8, SampleType::UInt16}) {
            // Larger than a tile in both directions, and no multiple of one.
            const auto image = picture(611, 333, 3, type);
            const Folder folder;
            mustWrite(image, folder("a.dng"), {{u"compressed"_s, compressed}});
            EXPECT_EQ(files().imageSize(folder("a.dng")), QSize(611, 333));
            const ReadResult back = mustRead(folder("a.dng"));
            EXPECT_GT(psnr(*back.image, *image), type == SampleType::UInt8 ? 50 : 60);
            EXPECT_TRUE(back.metadata.value(u"isRaw"_s).toBool());
        }
    }
}

TEST(Raw, CompressionSavesSpaceOnAFlatPicture) {
    const Folder folder;
    mustWrite(quarters(611, 333), folder("a.dng"), {{u"compressed"_s, u"1"_s}});
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
        mustWrite(image, folder("in.jpg"));
        setExif(folder("in.jpg"), "Exif.Image.Make", make);
        setExif(folder("in.jpg"), "Exif.Image.Model", "EOS 5D");
        mustWrite(image, folder("a.dng"), {}, folder("in.jpg"));
        const ReadResult back = mustRead(folder("a.dng"));
        EXPECT_GT(psnr(*back.image, *image), 60);
        EXPECT_EQ(back.metadata.value(u"make"_s).toString().toStdString(), make);
    }
}
