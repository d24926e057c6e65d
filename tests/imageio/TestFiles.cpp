#include "TestFiles.h"

#include "imageio/ColourProfile.h"
#include "imageio/FileBackend.h"

#include <exiv2/exiv2.hpp>

#include <QDir>

#include <cmath>
#include <cstdio>

#include <tiffio.h>

namespace testio {

namespace {

void setSample(ImageData &image, int x, int y, int channel, double value) {
    const std::size_t i = std::size_t(x * image.channels() + channel);
    const double clamped = std::clamp(value, 0.0, 1.0);
    if (image.bitDepth() == 8)
        image.samples<std::uint8_t>(y)[i] = std::uint8_t(std::lround(clamped * 255));
    else
        image.samples<std::uint16_t>(y)[i] = std::uint16_t(std::lround(clamped * 65535));
}

} // namespace

ImageFileBackend &files() {
    static const std::shared_ptr<ImageFileBackend> backend = makeFileBackend();
    return *backend;
}

QStringList Folder::entries() const {
    return QDir(path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

std::shared_ptr<ImageData> picture(int width, int height, int channels, SampleType type) {
    auto image = std::make_shared<ImageData>(width, height, channels, type);
    std::uint32_t random = 12345;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double u = double(x) / width;
            const double v = double(y) / height;
            const double edge = (x / 16 + y / 16) % 2 ? 0.15 : 0;
            random = random * 1664525 + 1013904223;
            const double grain = (double(random >> 16) / 65535 - 0.5) * 0.02;
            setSample(*image, x, y, 0, 0.2 + 0.6 * u + edge + grain);
            setSample(*image, x, y, 1, 0.3 + 0.4 * v + edge + grain);
            setSample(*image, x, y, 2, 0.8 - 0.5 * u * v - edge + grain);
            if (channels == 4)
                setSample(*image, x, y, 3, 0.25 + 0.75 * v);
        }
    }
    return image;
}

std::shared_ptr<ImageData> quarters(int width, int height) {
    auto image = std::make_shared<ImageData>(width, height, 3, SampleType::UInt8);
    static constexpr double Colours[4][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {1, 1, 1}};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            for (int c = 0; c < 3; ++c)
                setSample(*image, x, y, c, Colours[(y >= height / 2 ? 2 : 0) + (x >= width / 2 ? 1 : 0)][c]);
        }
    }
    return image;
}

double valueAt(const ImageData &image, int x, int y, int channel) {
    const std::size_t i = std::size_t(x * image.channels() + channel);
    return image.bitDepth() == 8 ? image.samples<std::uint8_t>(y)[i]
                                 : image.samples<std::uint16_t>(y)[i] / 257.0;
}

std::string colourAt(const ImageData &image, int x, int y) {
    static constexpr const char *Names[] = {"other", "red",   "green", "other",
                                            "blue",  "other", "other", "white"};
    const auto bright = [&](int c) { return valueAt(image, x, y, c) > 128; };
    return Names[bright(0) + 2 * bright(1) + 4 * bright(2)];
}

Corners corners(const ImageData &image) {
    const int right = image.width() - 4;
    const int bottom = image.height() - 4;
    return {colourAt(image, 3, 3), colourAt(image, right, 3), colourAt(image, 3, bottom),
            colourAt(image, right, bottom)};
}

double psnr(const ImageData &a, const ImageData &b) {
    if (sizeOf(a) != sizeOf(b) || a.channels() != b.channels())
        return 0;
    double sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            for (int c = 0; c < a.channels(); ++c) {
                const double d = valueAt(a, x, y, c) - valueAt(b, x, y, c);
                sum += d * d;
            }
        }
    }
    const double mean = sum / (double(a.width()) * a.height() * a.channels());
    return mean == 0 ? 200 : std::min(199.0, 10 * std::log10(255 * 255 / mean));
}

QSize sizeOf(const ImageData &image) {
    return {image.width(), image.height()};
}

ReadResult read(const QString &path) {
    return files().read({path, false}, {});
}

WriteResult write(const ImageRef &image, const QString &output, const QVariantMap &options,
                  const QVariantMap &imageData, const QString &input) {
    return files().write({image, input, output, imageData, options}, {});
}

ReadResult mustRead(const QString &path) {
    ReadResult result = read(path);
    EXPECT_TRUE(result.image) << path.toStdString() << ": " << result.error.toStdString();
    if (!result.image)
        result.image = quarters(1, 1);
    return result;
}

void mustWrite(const ImageRef &image, const QString &output, const QVariantMap &options,
               const QString &input) {
    EXPECT_EQ(write(image, output, options, {}, input).error.toStdString(), "");
}

QByteArray contents(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void setContents(const QString &path, const QByteArray &bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        std::abort();
}

void setExif(const QString &path, const std::string &key, const std::string &value) {
    const auto image = Exiv2::ImageFactory::open(QFile::encodeName(path).toStdString());
    image->readMetadata();
    image->exifData()[key] = value;
    image->writeMetadata();
}

QByteArray wideProfile() {
    return imageio::adobeRgbProfile();
}

void writeBayerDng(const QString &path, const std::array<std::array<float, 3>, 4> &quarters, int width,
                   int height) {
    constexpr float White = 4095, Black = 256;
    constexpr std::array<float, 3> Neutral = {0.5f, 1, 0.625f}; // the sensor's answer to grey
    TIFF *tiff = TIFFOpen(QFile::encodeName(path).constData(), "w");
    for (const auto &[tag, value] :
         {std::pair(TIFFTAG_IMAGEWIDTH, width), std::pair(TIFFTAG_IMAGELENGTH, height),
          std::pair(TIFFTAG_BITSPERSAMPLE, 16), std::pair(TIFFTAG_SAMPLESPERPIXEL, 1),
          std::pair(TIFFTAG_PHOTOMETRIC, 32803), std::pair(TIFFTAG_ROWSPERSTRIP, height),
          std::pair(TIFFTAG_CALIBRATIONILLUMINANT1, 21)})
        TIFFSetField(tiff, tag, value);
    TIFFSetField(tiff, TIFFTAG_MAKE, "Testmaker");
    TIFFSetField(tiff, TIFFTAG_MODEL, "Model One");
    TIFFSetField(tiff, TIFFTAG_UNIQUECAMERAMODEL, "Testmaker Model One");
    static constexpr std::array<std::uint8_t, 4> Version = {1, 4, 0, 0};
    static constexpr std::array<std::uint8_t, 4> Pattern = {0, 1, 1, 2};
    static constexpr std::array<std::uint16_t, 2> PatternSize = {2, 2};
    // The sensor sees the primaries of sRGB, each with its own sensitivity.
    std::array<float, 9> matrix = {3.2404542f, -1.5371385f, -0.4985314f, -0.9692660f, 1.8760108f,
                                   0.0415560f, 0.0556434f,  -0.2040259f, 1.0572252f};
    for (std::size_t i = 0; i < 9; ++i)
        matrix[i] *= Neutral[i / 3];
    TIFFSetField(tiff, TIFFTAG_DNGVERSION, Version.data());
    TIFFSetField(tiff, TIFFTAG_CFAREPEATPATTERNDIM, PatternSize.data());
    TIFFSetField(tiff, TIFFTAG_CFAPATTERN, 4, Pattern.data());
    TIFFSetField(tiff, TIFFTAG_COLORMATRIX1, 9, matrix.data());
    TIFFSetField(tiff, TIFFTAG_ASSHOTNEUTRAL, 3, Neutral.data());
    const auto white = std::uint32_t(White);
    const float black = Black;
    TIFFSetField(tiff, TIFFTAG_WHITELEVEL, 1, &white);
    TIFFSetField(tiff, TIFFTAG_BLACKLEVEL, 1, &black);
    std::vector<std::uint16_t> samples;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const std::size_t quarter = (y >= height / 2 ? 2u : 0u) + (x >= width / 2 ? 1u : 0u);
            const std::size_t c = std::size_t(y % 2 + x % 2);
            samples.push_back(std::uint16_t(Black + quarters[quarter][c] * Neutral[c] * (White - Black)));
        }
    }
    TIFFWriteEncodedStrip(tiff, 0, samples.data(), tmsize_t(samples.size() * 2));
    TIFFClose(tiff);
}

int overwriteUntilKilled(const QString &path) {
    const auto image = picture(900, 700, 3, SampleType::UInt8);
    while (write(image, path, {}, {}, path).error.isEmpty()) {
        std::puts("saved");
        std::fflush(stdout);
    }
    return 1;
}

} // namespace testio
