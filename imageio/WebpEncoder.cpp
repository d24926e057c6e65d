#include "imageio/WebpEncoder.h"

#include "imageio/PixelConversion.h"
#include "imageio/Text.h"

#include <QFile>

#include <algorithm>

#include <webp/encode.h>

namespace imageio {

namespace {

constexpr int FastMethod = 2;
constexpr int SpaceSavingMethod = 4;

/// A picture of the codec's own kind that is freed with its scope.
struct Picture {
    WebPPicture picture;
    Picture() { WebPPictureInit(&picture); }
    ~Picture() { WebPPictureFree(&picture); }
    Picture(const Picture &) = delete;
    Picture &operator=(const Picture &) = delete;
};

int writeBytes(const std::uint8_t *data, std::size_t size, const WebPPicture *picture) {
    return static_cast<QFile *>(picture->custom_ptr)
               ->write(reinterpret_cast<const char *>(data), qint64(size)) == qint64(size);
}

int onProgress(int percent, const WebPPicture *picture) {
    const RunControl &control = *static_cast<const RunControl *>(picture->user_data);
    control.report(percent / 100.0, QStringLiteral("Writing"));
    return !control.stopped();
}

bool configure(const EncodePlan &plan, WebPConfig &config) {
    const QString compression = plan.attributes.value(QStringLiteral("compression")).toString();
    const bool lossless = compression.startsWith(QLatin1String("lossless"));
    const float quality = compression.section(QLatin1Char(':'), 1).toFloat();
    if (!WebPConfigPreset(&config, WEBP_PRESET_PHOTO, lossless ? 75.0f : std::clamp(quality, 1.0f, 100.0f)))
        return false;
    config.lossless = lossless;
    config.method = FastMethod;
    config.thread_level = 1;
    return WebPValidateConfig(&config);
}

bool import(const ImageData &image, const EncodePlan &plan, WebPPicture &picture) {
    std::vector<std::byte> buffer;
    const auto *rows = reinterpret_cast<const std::uint8_t *>(
        convertRows(image, 0, image.height(), {8, plan.channels}, buffer));
    const int stride = image.width() * plan.channels;
    return plan.channels == 4 ? WebPPictureImportRGBA(&picture, rows, stride)
                              : WebPPictureImportRGB(&picture, rows, stride);
}

} // namespace

Encoded encodeWebp(const ImageData &image, const EncodePlan &plan, const QString &path,
                   const RunControl &control) {
    Encoded result;
    if (std::max(image.width(), image.height()) > WEBP_MAX_DIMENSION) {
        result.error =
            Text::tr("A WebP picture may have at most %1 pixels on a side.").arg(WEBP_MAX_DIMENSION);
        return result;
    }
    WebPConfig config;
    Picture holder;
    WebPPicture &picture = holder.picture;
    QFile file(path);
    if (!configure(plan, config) || !file.open(QIODevice::WriteOnly)) {
        result.error = Text::tr("The WebP file can't be written.");
        return result;
    }
    picture.use_argb = config.lossless;
    picture.width = image.width();
    picture.height = image.height();
    picture.writer = writeBytes;
    picture.custom_ptr = &file;
    picture.progress_hook = onProgress;
    picture.user_data = const_cast<RunControl *>(&control);
    if (!import(image, plan, picture)) {
        result.error = Text::tr("There is not enough memory for this picture.");
        return result;
    }
    bool written = WebPEncode(&config, &picture);
    if (!written && picture.error_code == VP8_ENC_ERROR_PARTITION0_OVERFLOW) {
        // The block headers of a very large picture don't fit; the space-saving method makes them smaller.
        config.method = SpaceSavingMethod;
        config.partition_limit = 100;
        file.resize(0);
        file.seek(0);
        written = WebPEncode(&config, &picture);
    }
    result.cancelled = control.stopped();
    if (!result.cancelled && (!written || !file.flush()))
        result.error =
            Text::tr("The picture can't be encoded as WebP (code %1).").arg(int(picture.error_code));
    return result;
}

} // namespace imageio
