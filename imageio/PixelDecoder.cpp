#include "imageio/PixelDecoder.h"

#include "imageio/DecodeLimits.h"
#include "imageio/MaskedFile.h"
#include "imageio/RowSink.h"
#include "imageio/Text.h"

#include <OpenImageIO/imageio.h>

#include <algorithm>

namespace imageio {

namespace {

constexpr int RowsPerBlock = 64;

void readResolution(const OIIO::ImageSpec &spec, Decoded &result) {
    const float x = spec.get_float_attribute("XResolution");
    const std::string unit(spec.get_string_attribute("ResolutionUnit"));
    const bool metre = unit == "m";
    const bool centimetre = unit == "cm";
    if (!(x > 1) || unit == "none" || unit.empty())
        return;
    result.resolution = metre ? x / 100 : x;
    result.resolutionUnit = metre || centimetre ? 3 : 2;
}

SourceRows describe(const OIIO::ImageSpec &spec, const FileFacts &facts, const QByteArray &icc) {
    SourceRows rows;
    rows.width = spec.width;
    rows.height = spec.height;
    rows.channels = spec.nchannels;
    rows.bits = spec.format == OIIO::TypeDesc::UINT8 ? 8 : 16;
    rows.icc = icc;
    const bool alpha = spec.alpha_channel >= 0;
    if (facts.cmyk && spec.nchannels >= 4)
        rows.model = ColourModel::Cmyk;
    else if (spec.nchannels <= 2)
        rows.model = spec.nchannels == 2 && alpha ? ColourModel::GreyAlpha : ColourModel::Grey;
    else
        rows.model = spec.nchannels >= 4 && spec.alpha_channel == 3 ? ColourModel::Rgba : ColourModel::Rgb;
    // Of these formats only TIFF can store colour multiplied by alpha; the library marks the other kind.
    rows.premultiplied =
        facts.kind == FileKind::Tiff && alpha && spec.get_int_attribute("oiio:UnassociatedAlpha") == 0;
    return rows;
}

QString libraryError(const OIIO::ImageInput &input, const FileFacts &facts) {
    const QString text = QString::fromStdString(input.geterror()).simplified();
    const auto says = [&](const char *word) {
        return text.contains(QLatin1String(word), Qt::CaseInsensitive);
    };
    if (says("end of file") || says("not enough data") || says("eof"))
        return limits::endsTooEarly();
    if (text.isEmpty())
        return Text::tr("The %1 data is damaged.").arg(kindName(facts.kind));
    return Text::tr("The %1 data can't be decoded: %2.")
        .arg(kindName(facts.kind), text.endsWith(QLatin1Char('.')) ? text.chopped(1) : text);
}

int blockRows(const OIIO::ImageSpec &spec, FileKind kind) {
    if (spec.tile_width > 0)
        return std::max(1, spec.tile_height);
    // Only single rows of a TIFF report damage; of several the library passes over it.
    return kind == FileKind::Tiff ? 1 : RowsPerBlock;
}

bool readBlock(OIIO::ImageInput &input, const OIIO::ImageSpec &spec, OIIO::TypeDesc type, int y, int rows,
               std::byte *to) {
    if (spec.tile_width == 0)
        return input.read_scanlines(0, 0, y, y + rows, 0, 0, spec.nchannels, type, to);
    return input.read_tiles(0, 0, spec.x, spec.x + spec.width, spec.y + y, spec.y + y + rows, 0, 1, 0,
                            spec.nchannels, type, to);
}

} // namespace

Decoded decodePixels(const QString &path, const FileFacts &facts, const QByteArray &icc,
                     const RunControl &control) {
    Decoded result;
    MaskedFile file(path, facts);
    const auto input = OIIO::ImageInput::create(pluginName(facts.kind));
    if (!input || !file.opened()) {
        result.error = QStringLiteral("%1 files can't be opened on this system.").arg(kindName(facts.kind));
        return result;
    }
    OIIO::ImageSpec config;
    config.attribute("oiio:UnassociatedAlpha", 1);
    if (facts.cmyk)
        config.attribute("oiio:RawColor", 1);
    if (input->supports("ioproxy"))
        input->set_ioproxy(&file);
    OIIO::ImageSpec spec;
    if (!input->open(path.toStdString(), spec, config)) {
        result.error = libraryError(*input, facts);
        return result;
    }
    if (qint64(spec.width) * spec.height > facts.width * facts.height || spec.width <= 0 ||
        spec.height <= 0 || spec.nchannels < 1 || spec.nchannels > 64) {
        result.error = limits::damagedHeader(facts.kind);
        return result;
    }
    result.bits = spec.get_int_attribute("oiio:BitsPerSample", int(spec.format.size()) * 8);
    readResolution(spec, result);
    const SourceRows source = describe(spec, facts, icc);
    RowSink sink(source);
    if (!sink.image()) {
        result.error = Text::tr("There is not enough memory for this picture.");
        return result;
    }
    const OIIO::TypeDesc type = source.bits == 8 ? OIIO::TypeDesc::UINT8 : OIIO::TypeDesc::UINT16;
    const int step = blockRows(spec, facts.kind);
    const std::size_t rowBytes = std::size_t(spec.width) * std::size_t(spec.nchannels) * type.size();
    std::vector<std::byte> buffer(sink.direct() ? 0 : rowBytes * std::size_t(step));
    for (int y = 0; y < spec.height; y += step) {
        if (control.stopped()) {
            result.cancelled = true;
            return result;
        }
        const int rows = std::min(step, spec.height - y);
        std::byte *to = sink.direct() ? sink.image()->row(y) : buffer.data();
        if (!readBlock(*input, spec, type, y, rows, to) || input->has_error()) {
            result.error = libraryError(*input, facts);
            return result;
        }
        if (sink.direct())
            sink.finished(y, rows);
        else
            sink.put(y, rows, to);
        control.report(double(y + rows) / spec.height, QStringLiteral("Reading"));
    }
    result.image = sink.image();
    return result;
}

} // namespace imageio
