#include "imageio/DngEncoder.h"

#include "imageio/ColourProfile.h"
#include "imageio/LosslessJpeg.h"
#include "imageio/PixelConversion.h"
#include "imageio/Text.h"
#include "imageio/Thumbnail.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <memory>
#include <thread>

#include <tiffio.h>

namespace imageio {

namespace {

constexpr std::uint32_t TileSide = 256;
constexpr int PreviewSide = 256;
constexpr int RowsPerStrip = 16;
constexpr std::uint16_t LinearRaw = 34892;
constexpr std::uint16_t DaylightD65 = 21;

// XYZ under D65 to linear sRGB (IEC 61966-2-1).
constexpr std::array<float, 9> ColourMatrix = {3.2404542f, -1.5371385f, -0.4985314f, -0.9692660f, 1.8760108f,
                                               0.0415560f, 0.0556434f,  -0.2040259f, 1.0572252f};

constexpr ttag_t ProfileName = 50936;
constexpr ttag_t ProfileToneCurve = 50940;
constexpr ttag_t DefaultBlackRender = 51110;

/// Entries that the library may not know yet.
const TIFFFieldInfo ExtraFields[] = {
    {ProfileName, -1, -1, TIFF_ASCII, FIELD_CUSTOM, 1, 0, const_cast<char *>("ProfileName")},
    {ProfileToneCurve, -1, -1, TIFF_FLOAT, FIELD_CUSTOM, 1, 1, const_cast<char *>("ProfileToneCurve")},
    {DefaultBlackRender, 1, 1, TIFF_LONG, FIELD_CUSTOM, 1, 0, const_cast<char *>("DefaultBlackRender")},
};

using Tiff = std::unique_ptr<TIFF, decltype(&TIFFClose)>;

int quiet(TIFF *, void *, const char *, const char *, va_list) {
    return 1;
}

Tiff openForWriting(const QString &path) {
    const std::unique_ptr<TIFFOpenOptions, decltype(&TIFFOpenOptionsFree)> options(TIFFOpenOptionsAlloc(),
                                                                                   &TIFFOpenOptionsFree);
    TIFFOpenOptionsSetErrorHandlerExtR(options.get(), quiet, nullptr);
    TIFFOpenOptionsSetWarningHandlerExtR(options.get(), quiet, nullptr);
    return {TIFFOpenExt(QFile::encodeName(path).constData(), "w", options.get()), &TIFFClose};
}

void addUnknownFields(TIFF *tiff) {
    for (const TIFFFieldInfo &field : ExtraFields) {
        if (!TIFFFindField(tiff, field.field_tag, TIFF_ANY))
            TIFFMergeFieldInfo(tiff, &field, 1);
    }
}

void describeColours(TIFF *tiff) {
    static constexpr std::array<std::uint8_t, 4> Version = {1, 4, 0, 0};
    static constexpr std::array<std::uint8_t, 4> Oldest = {1, 1, 0, 0};
    static constexpr std::array<float, 3> Neutral = {1, 1, 1};
    static constexpr std::array<float, 4> Straight = {0, 0, 1, 1};
    TIFFSetField(tiff, TIFFTAG_DNGVERSION, Version.data());
    TIFFSetField(tiff, TIFFTAG_DNGBACKWARDVERSION, Oldest.data());
    // Not the camera's own name: profiles made for its sensor must not be applied to this.
    TIFFSetField(tiff, TIFFTAG_UNIQUECAMERAMODEL, "Orvane Studio Linear RGB");
    TIFFSetField(tiff, TIFFTAG_COLORMATRIX1, ColourMatrix.size(), ColourMatrix.data());
    TIFFSetField(tiff, TIFFTAG_CALIBRATIONILLUMINANT1, DaylightD65);
    TIFFSetField(tiff, TIFFTAG_ASSHOTNEUTRAL, Neutral.size(), Neutral.data());
    TIFFSetField(tiff, TIFFTAG_BASELINEEXPOSURE, 0.0);
    TIFFSetField(tiff, ProfileName, "Orvane Studio Linear");
    TIFFSetField(tiff, ProfileToneCurve, Straight.size(), Straight.data());
    TIFFSetField(tiff, DefaultBlackRender, 1u);
}

void describeStorage(TIFF *tiff, int width, int height, int bits, std::uint16_t photometric,
                     const EncodePlan &plan) {
    TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, std::uint32_t(width));
    TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, std::uint32_t(height));
    TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, bits);
    TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, 3);
    TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, photometric);
    TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    TIFFSetField(tiff, TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT);
    TIFFSetField(tiff, TIFFTAG_XRESOLUTION, plan.resolution);
    TIFFSetField(tiff, TIFFTAG_YRESOLUTION, plan.resolution);
    TIFFSetField(tiff, TIFFTAG_RESOLUTIONUNIT, plan.resolutionUnit == 3 ? RESUNIT_CENTIMETER : RESUNIT_INCH);
}

bool writePreview(TIFF *tiff, const ImageData &image, const EncodePlan &plan) {
    const auto preview = shrinkToSrgb(image, PreviewSide, 3);
    if (!preview)
        return false;
    TIFFSetField(tiff, TIFFTAG_SUBFILETYPE, FILETYPE_REDUCEDIMAGE);
    describeStorage(tiff, preview->width(), preview->height(), 8, PHOTOMETRIC_RGB, plan);
    TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, preview->height());
    describeColours(tiff);
    std::array<toff_t, 1> place = {0};
    TIFFSetField(tiff, TIFFTAG_SUBIFD, 1, place.data());
    return TIFFWriteEncodedStrip(tiff, 0, preview->row(0), tmsize_t(preview->byteCount())) >= 0 &&
           TIFFWriteDirectory(tiff);
}

/// Rows of the picture as linear light with the primaries of sRGB.
class LinearRows {
public:
    explicit LinearRows(const ImageData &image)
        : m_image(image)
        , m_transform(ColourTransform::toLinearSrgb(image.iccProfile(), Layout::Rgb16, Layout::Rgb16)) {}
    bool isValid() const { return m_transform.isValid(); }
    void read(int y, int rows, std::vector<std::uint16_t> &to) {
        const auto width = std::size_t(m_image.width());
        const std::byte *from = convertRows(m_image, y, rows, {16, 3}, m_buffer);
        to.resize(width * 3 * std::size_t(rows));
        m_transform.apply(from, to.data(), width * std::size_t(rows));
    }

private:
    const ImageData &m_image;
    ColourTransform m_transform;
    std::vector<std::byte> m_buffer;
};

bool writeStrips(TIFF *tiff, const ImageData &image, LinearRows &linear, const RunControl &control) {
    TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, RowsPerStrip);
    std::vector<std::uint16_t> rows;
    for (int y = 0; y < image.height() && !control.stopped(); y += RowsPerStrip) {
        const int count = std::min(RowsPerStrip, image.height() - y);
        linear.read(y, count, rows);
        if (TIFFWriteEncodedStrip(tiff, std::uint32_t(y / RowsPerStrip), rows.data(),
                                  tmsize_t(rows.size() * 2)) < 0)
            return false;
        control.report(double(y + count) / image.height(), QStringLiteral("Writing"));
    }
    return true;
}

/// One row of tiles, the last ones filled up by repeating the edge, each coded on any free core.
std::vector<std::vector<std::uint8_t>> codeTiles(const std::vector<std::uint16_t> &rows, int width,
                                                 int height) {
    constexpr auto Side = std::size_t(TileSide);
    std::vector<std::vector<std::uint8_t>> coded((std::size_t(width) + Side - 1) / Side);
    std::atomic<std::size_t> next = 0;
    const auto work = [&] {
        std::vector<std::uint16_t> tile(Side * Side * 3);
        for (std::size_t t = next++; t < coded.size(); t = next++) {
            for (std::size_t y = 0; y < Side; ++y) {
                const std::size_t from = std::min(y, std::size_t(height) - 1) * std::size_t(width);
                for (std::size_t x = 0; x < Side; ++x) {
                    const std::size_t column = std::min(t * Side + x, std::size_t(width) - 1);
                    std::copy_n(rows.begin() + std::ptrdiff_t((from + column) * 3), 3,
                                tile.begin() + std::ptrdiff_t((y * Side + x) * 3));
                }
            }
            coded[t] = encodeLosslessJpeg(tile.data(), int(TileSide), int(TileSide), Side * 3);
        }
    };
    const unsigned cores = std::clamp(std::thread::hardware_concurrency(), 1u, 16u);
    std::vector<std::jthread> others;
    for (unsigned i = 1; i < std::min<unsigned>(cores, unsigned(coded.size())); ++i)
        others.emplace_back(work);
    work();
    others.clear();
    return coded;
}

bool writeTiles(TIFF *tiff, const ImageData &image, LinearRows &linear, const RunControl &control) {
    TIFFSetField(tiff, TIFFTAG_COMPRESSION, COMPRESSION_JPEG);
    TIFFSetField(tiff, TIFFTAG_TILEWIDTH, TileSide);
    TIFFSetField(tiff, TIFFTAG_TILELENGTH, TileSide);
    std::vector<std::uint16_t> rows;
    std::uint32_t tile = 0;
    for (int y = 0; y < image.height() && !control.stopped(); y += int(TileSide)) {
        const int count = std::min(int(TileSide), image.height() - y);
        linear.read(y, count, rows);
        for (std::vector<std::uint8_t> &coded : codeTiles(rows, image.width(), count)) {
            if (TIFFWriteRawTile(tiff, tile++, coded.data(), tmsize_t(coded.size())) < 0)
                return false;
        }
        control.report(double(y + count) / image.height(), QStringLiteral("Writing"));
    }
    return true;
}

} // namespace

Encoded encodeDng(const ImageData &image, const EncodePlan &plan, const QString &path,
                  const RunControl &control) {
    Encoded result;
    const QString failed = Text::tr("The DNG file can't be written.");
    LinearRows linear(image);
    Tiff tiff = openForWriting(path);
    if (!tiff || !linear.isValid()) {
        result.error = failed;
        return result;
    }
    addUnknownFields(tiff.get());
    bool written = writePreview(tiff.get(), image, plan);
    if (written) {
        TIFFSetField(tiff.get(), TIFFTAG_SUBFILETYPE, 0);
        describeStorage(tiff.get(), image.width(), image.height(), 16, LinearRaw, plan);
        static constexpr std::array<std::uint32_t, 3> White = {65535, 65535, 65535};
        TIFFSetField(tiff.get(), TIFFTAG_WHITELEVEL, White.size(), White.data());
        written = plan.compressed ? writeTiles(tiff.get(), image, linear, control)
                                  : writeStrips(tiff.get(), image, linear, control);
    }
    result.cancelled = control.stopped();
    written = written && TIFFFlush(tiff.get());
    if (!written && !result.cancelled)
        result.error = failed;
    return result;
}

} // namespace imageio
