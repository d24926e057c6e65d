#include "imageio/WebpDecoder.h"

#include "imageio/DecodeLimits.h"
#include "imageio/RowSink.h"
#include "imageio/Text.h"

#include <QFile>

#include <memory>

#include <webp/decode.h>
#include <webp/demux.h>

namespace imageio {

namespace {

constexpr std::size_t Portion = 64 * 1024;

QString damaged() {
    return Text::tr("The WebP data is damaged.");
}

/// The bytes of the first frame; of a still picture all there is.
QByteArrayView firstFrame(const WebPData &file, WebPIterator &frame) {
    const std::unique_ptr<WebPDemuxer, decltype(&WebPDemuxDelete)> demuxer(WebPDemux(&file),
                                                                           &WebPDemuxDelete);
    if (!demuxer || !WebPDemuxGetFrame(demuxer.get(), 1, &frame))
        return {};
    // The bytes lie in the caller's buffer, which outlives the demuxer.
    return {frame.fragment.bytes, qsizetype(frame.fragment.size)};
}

} // namespace

Decoded decodeWebp(const QString &path, const FileFacts &facts, const QByteArray &icc,
                   const RunControl &control) {
    Decoded result;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        result.error = Text::tr("The file can't be opened.");
        return result;
    }
    const QByteArray bytes = file.readAll();
    const WebPData all{reinterpret_cast<const std::uint8_t *>(bytes.constData()), std::size_t(bytes.size())};
    WebPIterator frame{};
    const QByteArrayView data = firstFrame(all, frame);
    WebPDecoderConfig config;
    const auto *first = reinterpret_cast<const std::uint8_t *>(data.data());
    if (data.isEmpty() || !WebPInitDecoderConfig(&config) ||
        WebPGetFeatures(first, std::size_t(data.size()), &config.input) != VP8_STATUS_OK ||
        qint64(config.input.width) * config.input.height > facts.width * facts.height) {
        result.error = damaged();
        return result;
    }
    const bool alpha = config.input.has_alpha != 0;
    RowSink sink(SourceRows{config.input.width, config.input.height, alpha ? 4 : 3, 8,
                            alpha ? ColourModel::Rgba : ColourModel::Rgb, false, false, icc});
    if (!sink.image()) {
        result.error = Text::tr("There is not enough memory for this picture.");
        return result;
    }
    ImageData &image = *sink.image();
    config.options.use_threads = 1;
    config.output.colorspace = alpha ? MODE_RGBA : MODE_RGB;
    config.output.is_external_memory = 1;
    config.output.u.RGBA = {reinterpret_cast<std::uint8_t *>(image.row(0)), int(image.rowBytes()),
                            image.byteCount()};
    const std::unique_ptr<WebPIDecoder, decltype(&WebPIDelete)> decoder(WebPIDecode(nullptr, 0, &config),
                                                                        &WebPIDelete);
    VP8StatusCode status = decoder ? VP8_STATUS_SUSPENDED : VP8_STATUS_OUT_OF_MEMORY;
    for (std::size_t at = 0; status == VP8_STATUS_SUSPENDED && at < std::size_t(data.size());) {
        if (control.stopped()) {
            result.cancelled = true;
            return result;
        }
        at = std::min(at + Portion, std::size_t(data.size()));
        status = WebPIUpdate(decoder.get(), first, at);
        control.report(double(at) / double(data.size()), QStringLiteral("Reading"));
    }
    if (status == VP8_STATUS_OK)
        result.image = sink.image();
    else
        result.error = status == VP8_STATUS_SUSPENDED ? limits::endsTooEarly() : damaged();
    return result;
}

} // namespace imageio
