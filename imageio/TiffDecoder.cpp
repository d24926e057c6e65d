#include "imageio/TiffDecoder.h"

#include "imageio/DecodeLimits.h"
#include "imageio/RowSink.h"
#include "imageio/Text.h"

#include <QFile>

#include <algorithm>
#include <cstring>
#include <memory>

#include <tiffio.h>

namespace imageio {

namespace {

constexpr std::uint64_t LargestTile = 256 << 20;

using Tiff = std::unique_ptr<TIFF, decltype(&TIFFClose)>;

int quiet(TIFF *, void *, const char *, const char *, va_list) {
    return 1;
}

Tiff openForReading(const QString &path) {
    const std::unique_ptr<TIFFOpenOptions, decltype(&TIFFOpenOptionsFree)> options(TIFFOpenOptionsAlloc(),
                                                                                   &TIFFOpenOptionsFree);
    TIFFOpenOptionsSetErrorHandlerExtR(options.get(), quiet, nullptr);
    TIFFOpenOptionsSetWarningHandlerExtR(options.get(), quiet, nullptr);
    return {TIFFOpenExt(QFile::encodeName(path).constData(), "r", options.get()), &TIFFClose};
}

int number(TIFF *tiff, std::uint32_t tag) {
    std::uint16_t value = 0;
    return TIFFGetFieldDefaulted(tiff, tag, &value) ? value : 0;
}

/// Fills what RowSink needs; false for kinds that are left to the image library.
bool describe(TIFF *tiff, SourceRows &rows) {
    const int photometric = number(tiff, TIFFTAG_PHOTOMETRIC);
    const int format = number(tiff, TIFFTAG_SAMPLEFORMAT);
    rows.channels = number(tiff, TIFFTAG_SAMPLESPERPIXEL);
    rows.bits = number(tiff, TIFFTAG_BITSPERSAMPLE);
    if ((rows.bits != 8 && rows.bits != 16) || number(tiff, TIFFTAG_PLANARCONFIG) != PLANARCONFIG_CONTIG ||
        (format != SAMPLEFORMAT_UINT && format != SAMPLEFORMAT_VOID))
        return false;
    std::uint16_t count = 0;
    const std::uint16_t *meaning = nullptr;
    TIFFGetFieldDefaulted(tiff, TIFFTAG_EXTRASAMPLES, &count, &meaning);
    const bool multiplied = count > 0 && meaning && meaning[0] == EXTRASAMPLE_ASSOCALPHA;
    const bool alpha = multiplied || (count > 0 && meaning && meaning[0] == EXTRASAMPLE_UNASSALPHA);
    int least = 3;
    if (photometric == PHOTOMETRIC_RGB) {
        rows.model = alpha ? ColourModel::Rgba : ColourModel::Rgb;
    } else if (photometric == PHOTOMETRIC_MINISBLACK || photometric == PHOTOMETRIC_MINISWHITE) {
        rows.model = alpha ? ColourModel::GreyAlpha : ColourModel::Grey;
        least = 1;
    } else if (photometric == PHOTOMETRIC_SEPARATED) {
        rows.model = ColourModel::Cmyk;
        least = 4;
    } else {
        return false;
    }
    rows.premultiplied = multiplied;
    return rows.channels >= least + (alpha && rows.model != ColourModel::Cmyk ? 1 : 0);
}

void invert(std::span<std::byte> bytes) {
    for (std::byte &b : bytes)
        b = ~b;
}

/// Hands rows to the sink, strip by strip or one row of tiles at a time.
class BandReader {
public:
    BandReader(TIFF *tiff, const SourceRows &rows)
        : m_tiff(tiff)
        , m_pixelBytes(std::size_t(rows.channels * rows.bits / 8))
        , m_rowBytes(std::size_t(rows.width) * m_pixelBytes)
        , m_tiled(TIFFIsTiled(tiff)) {
        TIFFGetFieldDefaulted(tiff, m_tiled ? TIFFTAG_TILELENGTH : TIFFTAG_ROWSPERSTRIP, &m_height);
        m_height = std::min(m_height, std::uint32_t(rows.height));
        TIFFGetField(tiff, TIFFTAG_TILEWIDTH, &m_tileWidth);
    }

    /// False where the sizes in the file contradict each other.
    bool isValid() const {
        return m_height > 0 && m_rowBytes == std::size_t(TIFFScanlineSize64(m_tiff)) &&
               (!m_tiled || (m_tileWidth > 0 && m_tileWidth <= limits::MaxSide));
    }
    int height() const { return int(m_height); }

    /// Rows y to y + rows - 1, y a multiple of height(). Empty when they can't be decoded.
    std::span<std::byte> read(int y, int rows) {
        m_band.resize(m_rowBytes * m_height);
        const std::size_t wanted = m_rowBytes * std::size_t(rows);
        const bool read = m_tiled ? readTiles(std::uint32_t(y), rows)
                                  : TIFFReadEncodedStrip(m_tiff, std::uint32_t(y) / m_height, m_band.data(),
                                                         tmsize_t(wanted)) == tmsize_t(wanted);
        return read ? std::span(m_band).first(wanted) : std::span<std::byte>();
    }

private:
    bool readTiles(std::uint32_t y, int rows) {
        const std::size_t tileRow = m_tileWidth * m_pixelBytes;
        m_tile.resize(std::size_t(std::max<tmsize_t>(0, TIFFTileSize(m_tiff))));
        if (m_tile.size() < tileRow * std::size_t(rows))
            return false;
        for (std::size_t left = 0; left < m_rowBytes; left += tileRow) {
            const auto x = std::uint32_t(left / m_pixelBytes);
            if (TIFFReadTile(m_tiff, m_tile.data(), x, y, 0, 0) < 0)
                return false;
            const std::size_t count = std::min(tileRow, m_rowBytes - left);
            for (std::size_t row = 0; row < std::size_t(rows); ++row)
                std::memcpy(m_band.data() + row * m_rowBytes + left, m_tile.data() + row * tileRow, count);
        }
        return true;
    }

    TIFF *m_tiff;
    std::size_t m_pixelBytes;
    std::size_t m_rowBytes;
    bool m_tiled;
    std::uint32_t m_height = 0;
    std::uint32_t m_tileWidth = 0;
    std::vector<std::byte> m_band;
    std::vector<std::byte> m_tile;
};

} // namespace

std::optional<Decoded> decodeTiff(const QString &path, const FileFacts &facts, const QByteArray &icc,
                                  const RunControl &control) {
    const Tiff tiff = openForReading(path);
    SourceRows rows;
    rows.width = int(facts.width);
    rows.height = int(facts.height);
    rows.icc = icc;
    if (!tiff || !describe(tiff.get(), rows))
        return std::nullopt;
    Decoded result;
    result.bits = rows.bits;
    const QString damaged = Text::tr("The TIFF data is damaged.");
    BandReader reader(tiff.get(), rows);
    if (!reader.isValid()) {
        result.error = damaged;
        return result;
    }
    RowSink sink(rows);
    if (!sink.image()) {
        result.error = Text::tr("There is not enough memory for this picture.");
        return result;
    }
    const bool whiteIsZero = number(tiff.get(), TIFFTAG_PHOTOMETRIC) == PHOTOMETRIC_MINISWHITE;
    for (int y = 0; y < rows.height; y += reader.height()) {
        if (control.stopped()) {
            result.cancelled = true;
            return result;
        }
        const int count = std::min(reader.height(), rows.height - y);
        const std::span<std::byte> band = reader.read(y, count);
        if (band.empty()) {
            result.error = damaged;
            return result;
        }
        if (whiteIsZero)
            invert(band);
        sink.put(y, count, band.data());
        control.report(double(y + count) / rows.height, QStringLiteral("Reading"));
    }
    result.image = sink.image();
    return result;
}

} // namespace imageio
