#include "TestFiles.h"

#include <QImage>

#include <OpenImageIO/imageio.h>

#include <tiffio.h>

using namespace testio;

namespace {

/// A file of one colour through the image library.
void writePlain(const QString &path, const std::vector<float> &colour, OIIO::TypeDesc type) {
    OIIO::ImageSpec spec(24, 20, int(colour.size()), type);
    if (colour.size() == 2) {
        spec.channelnames = {"Y", "A"};
        spec.alpha_channel = 1;
        spec.attribute("oiio:UnassociatedAlpha", 1);
    }
    const auto out = OIIO::ImageOutput::create(path.toStdString());
    ASSERT_TRUE(out && out->open(path.toStdString(), spec));
    std::vector<float> pixels;
    for (int i = 0; i < spec.width * spec.height; ++i)
        pixels.insert(pixels.end(), colour.begin(), colour.end());
    ASSERT_TRUE(out->write_image(OIIO::TypeFloat, pixels.data()));
    ASSERT_TRUE(out->close());
}

struct TiffKind {
    std::uint16_t photometric, bits;
    std::vector<std::uint16_t> samples; ///< of one pixel, of `bits` each
    int extra = -1;                     ///< meaning of the last sample, TIFF tag 338
    bool tiled = false, planar = false;
};

/// A TIFF of one colour.
void writeTiff(const QString &path, const TiffKind &kind) {
    TIFF *tiff = TIFFOpen(QFile::encodeName(path).constData(), "w");
    TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, 24);
    TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, 20);
    TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, kind.bits);
    TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, int(kind.samples.size()));
    TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, kind.photometric);
    TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, kind.planar ? PLANARCONFIG_SEPARATE : PLANARCONFIG_CONTIG);
    if (kind.photometric == PHOTOMETRIC_PALETTE) {
        std::array<std::uint16_t, 256> red{}, none{};
        red[5] = 0xffff;
        TIFFSetField(tiff, TIFFTAG_COLORMAP, red.data(), none.data(), none.data());
    }
    if (kind.extra >= 0) {
        const auto meaning = std::uint16_t(kind.extra);
        TIFFSetField(tiff, TIFFTAG_EXTRASAMPLES, 1, &meaning);
    }
    const std::uint32_t side = 16;
    TIFFSetField(tiff, kind.tiled ? TIFFTAG_TILEWIDTH : TIFFTAG_ROWSPERSTRIP, kind.tiled ? side : 20);
    if (kind.tiled)
        TIFFSetField(tiff, TIFFTAG_TILELENGTH, side);
    const std::uint32_t planes = kind.planar ? std::uint32_t(kind.samples.size()) : 1;
    for (std::uint32_t plane = 0; plane < planes; ++plane) {
        std::vector<std::uint8_t> block;
        for (std::uint32_t i = 0; i < (kind.tiled ? side * side : 24 * 20); ++i) {
            for (std::uint32_t c = plane; c < (kind.planar ? plane + 1 : kind.samples.size()); ++c) {
                const std::uint16_t sample = kind.samples[c];
                if (kind.bits >= 8 || i * kind.bits % 8 == 0)
                    block.push_back(std::uint8_t(kind.bits == 1 ? sample * 255 : sample));
                if (kind.bits == 16)
                    block.push_back(std::uint8_t(sample >> 8));
            }
        }
        const auto size = tmsize_t(block.size());
        for (std::uint32_t tile = 0; kind.tiled && tile < 4; ++tile)
            TIFFWriteEncodedTile(tiff, plane * 4 + tile, block.data(), size);
        if (!kind.tiled)
            TIFFWriteEncodedStrip(tiff, plane, block.data(), size);
    }
    TIFFClose(tiff);
}

struct Expected {
    const char *name;
    std::vector<double> value; ///< of one pixel, 0 to 255
    int bits;
    double tolerance = 0.6;
};

void expectPicture(const QString &path, const Expected &expected) {
    SCOPED_TRACE(expected.name);
    const ReadResult back = mustRead(path);
    EXPECT_EQ(back.image->bitDepth(), expected.bits);
    ASSERT_EQ(back.image->channels(), int(expected.value.size()));
    for (int c = 0; c < back.image->channels(); ++c)
        EXPECT_NEAR(valueAt(*back.image, 11, 19, c), expected.value[std::size_t(c)], expected.tolerance) << c;
    // What the file says of its own storage must not be carried over to the result.
    const QString saved = path + u".saved.tif"_s;
    mustWrite(back.image, saved, {}, path);
    EXPECT_EQ(psnr(*read(saved).image, *back.image), 200);
}

} // namespace

TEST(ColourModel, EverythingBecomesRgbOrRgba) {
    const Folder folder;
    int files = 0;
    const auto file = [&](const char *ending) { return folder((std::to_string(files++) + ending).c_str()); };

    const struct {
        const char *ending;
        std::vector<float> colour;
        OIIO::TypeDesc type;
        Expected expected;
    } plain[] = {
        {".png", {0.4f}, OIIO::TypeUInt8, {"grey PNG", {102, 102, 102}, 8}},
        {".png", {0.6f, 0.5f}, OIIO::TypeUInt16, {"grey PNG with alpha", {153, 153, 153, 127.5}, 16}},
        {".jpg", {0.4f}, OIIO::TypeUInt8, {"grey JPEG", {102, 102, 102}, 8}},
        {".tif", {0.25f, 0.5f, 2.0f}, OIIO::TypeFloat, {"float TIFF", {63.75, 127.5, 255}, 16}},
        {".tif", {0.25f, 0.5f, 0.75f}, OIIO::TypeUInt32, {"32-bit TIFF", {63.75, 127.5, 191.25}, 16}},
    };
    QString path;
    for (const auto &[ending, colour, type, expected] : plain) {
        path = file(ending);
        writePlain(path, colour, type);
        expectPicture(path, expected);
    }
    const std::vector<std::pair<TiffKind, Expected>> tiffs = {
        {{PHOTOMETRIC_MINISBLACK, 1, {1}}, {"black and white TIFF", {255, 255, 255}, 8}},
        {{PHOTOMETRIC_MINISWHITE, 1, {1}}, {"white at 0, 1 bit", {0, 0, 0}, 8}},
        {{PHOTOMETRIC_MINISWHITE, 1, {0}, -1, true}, {"white at 0, 1 bit, tiled", {255, 255, 255}, 8}},
        {{PHOTOMETRIC_MINISWHITE, 8, {55}}, {"white at 0", {200, 200, 200}, 8}},
        {{PHOTOMETRIC_MINISWHITE, 8, {55}, -1, true}, {"white at 0, tiled", {200, 200, 200}, 8}},
        {{PHOTOMETRIC_MINISWHITE, 16, {0x37c8}}, {"white at 0, 16 bits", {199.2, 199.2, 199.2}, 16}},
        {{PHOTOMETRIC_MINISWHITE, 16, {0x37c8}, -1, true},
         {"white at 0, 16 bits, tiled", {199.2, 199.2, 199.2}, 16}},
        {{PHOTOMETRIC_PALETTE, 8, {5}}, {"palette TIFF", {255, 0, 0}, 8}},
        {{PHOTOMETRIC_PALETTE, 8, {5}, -1, true}, {"palette TIFF, tiled", {255, 0, 0}, 8}},
        {{PHOTOMETRIC_RGB, 8, {51, 102, 153}, -1, true}, {"tiled TIFF", {51, 102, 153}, 8}},
        {{PHOTOMETRIC_RGB, 8, {51, 102, 153}, -1, false, true}, {"planar TIFF", {51, 102, 153}, 8}},
        {{PHOTOMETRIC_RGB, 16, {0x2000, 0x4000, 0x8000}, -1, true, true},
         {"planar TIFF, tiled", {31.9, 63.8, 127.5}, 16}},
        {{PHOTOMETRIC_RGB, 8, {100, 50, 25, 128}, EXTRASAMPLE_ASSOCALPHA},
         {"TIFF with colour multiplied by alpha", {199, 100, 50, 128}, 8}},
        {{PHOTOMETRIC_RGB, 16, {0x2000, 0x4000, 0x8000, 0x1234}, EXTRASAMPLE_UNSPECIFIED},
         {"TIFF with a fourth channel that is no alpha", {31.9, 63.8, 127.5}, 16}},
        {{PHOTOMETRIC_SEPARATED, 8, {0, 255, 255, 51}}, {"CMYK TIFF", {204, 0, 0}, 8}},
        {{PHOTOMETRIC_SEPARATED, 16, {0xffff, 0, 0, 0}}, {"CMYK TIFF, 16 bits", {0, 255, 255}, 16}},
    };
    for (const auto &[kind, expected] : tiffs) {
        path = file(".tif");
        writeTiff(path, kind);
        expectPicture(path, expected);
    }

    path = file(".jpg");
    QImage cmyk(24, 24, QImage::Format_CMYK8888);
    for (qsizetype i = 0; i < cmyk.sizeInBytes(); ++i)
        cmyk.bits()[i] = std::array<uchar, 4>{0, 255, 0, 51}[std::size_t(i % 4)];
    ASSERT_TRUE(cmyk.save(path, "jpg", 90));
    expectPicture(path, {"CMYK JPEG", {204, 0, 204}, 8, 3});
}

TEST(ColourModel, WideColoursStayWideWhereTheFormatHasAProfileAndAreConvertedWhereNot) {
    const Folder folder;
    const auto image = quarters(40, 40);
    image->setIccProfile(wideProfile());
    // Full green of the wide space lies outside sRGB: its green clips at full, red falls to none.
    for (const char *name : {"a.bmp", "a.dng"}) {
        SCOPED_TRACE(name);
        mustWrite(image, folder(name));
        const ReadResult back = mustRead(folder(name));
        EXPECT_EQ(colourAt(*back.image, 35, 5), "green");
        EXPECT_LT(valueAt(*back.image, 35, 5, 0), 10);
        EXPECT_EQ(back.metadata.value(u"colorSpace"_s).toString().toStdString(), "sRGB");
    }
}
