#include "imageio/RawDecoder.h"

#include "imageio/ColourProfile.h"
#include "imageio/DecodeLimits.h"
#include "imageio/Text.h"

#include <libraw/libraw.h>

#include <QDebug>
#include <QFile>
#include <QFileInfo>

#include <cmath>
#include <new>

namespace imageio {

namespace {

constexpr int SrgbOutput = 1;
constexpr int AdaptiveHomogeneity = 3; ///< demosaic: few false colours, and spread over the cores
/// The most pixels that a byte of losslessly compressed sensor data holds.
constexpr double PixelsPerByte = 64;

struct Watch {
    const RunControl *control = nullptr;
    bool damaged = false;
    qint64 damagedAt = -1;
};

int onProgress(void *data, LibRaw_progress stage, int step, int steps) {
    const Watch &watch = *static_cast<const Watch *>(data);
    // The library's stages are powers of two; developing takes the later half of them.
    const double fraction = std::log2(double(stage)) / std::log2(double(LIBRAW_PROGRESS_THUMB_MASK));
    Q_UNUSED(step)
    Q_UNUSED(steps)
    watch.control->report(std::min(1.0, fraction), QStringLiteral("Developing"));
    return watch.control->stopped() ? 1 : 0;
}

void onDamage(void *data, const char *, int offset) {
    Watch &watch = *static_cast<Watch *>(data);
    if (!watch.damaged)
        watch.damagedAt = offset;
    watch.damaged = true;
}

QString sentence(int code) {
    switch (code) {
    case LIBRAW_FILE_UNSUPPORTED:
        return Text::tr("The file is not a camera RAW file of a supported kind.");
    case LIBRAW_NOT_IMPLEMENTED:
        return Text::tr("RAW files of this camera or compression can't be developed.");
    case LIBRAW_UNSUFFICIENT_MEMORY:
    case LIBRAW_TOO_BIG:
        return Text::tr("There is not enough memory for this picture.");
    case LIBRAW_IO_ERROR:
    case LIBRAW_INPUT_CLOSED:
        return limits::endsTooEarly();
    case LIBRAW_DATA_ERROR:
        return Text::tr("The RAW data is damaged.");
    default:
        break;
    }
    const QString reason = code > 0 ? qt_error_string(code) : QString::fromLatin1(LibRaw::strerror(code));
    return Text::tr("The RAW data can't be developed: %1.").arg(reason);
}

QString damageSentence(const Watch &watch) {
    if (watch.damagedAt < 0)
        return limits::endsTooEarly();
    return Text::tr("The RAW data is damaged near byte %1.").arg(watch.damagedAt);
}

void setParameters(LibRaw &raw, bool halfSize) {
    libraw_output_params_t &p = raw.imgdata.params;
    p.output_bps = 16;
    p.output_color = SrgbOutput;
    p.gamm[0] = 1 / 2.4;
    p.gamm[1] = 12.92;
    p.use_camera_wb = 1;
    p.no_auto_bright = 1;
    p.highlight = 0;
    p.user_qual = AdaptiveHomogeneity;
    p.half_size = halfSize;
    raw.imgdata.rawparams.max_raw_memory_mb = unsigned(limits::MaxPixels * 8 >> 20);
}

/// What a DNG says of its own rendering: its white level is exact, and its baseline exposure is
/// part of the look.
void followDng(LibRaw &raw) {
    if (raw.imgdata.idata.dng_version == 0)
        return;
    libraw_output_params_t &p = raw.imgdata.params;
    p.adjust_maximum_thr = 0;
    const float stops = raw.imgdata.color.dng_levels.baseline_exposure;
    if (std::isfinite(stops) && std::abs(stops) > 0.01f && std::abs(stops) <= 3) {
        p.exp_correc = 1;
        p.exp_shift = std::exp2(stops);
        qInfo("The RAW file asks for a baseline exposure of %.2f stops, which was applied.", double(stops));
    }
}

void greyToRgb(ImageData &image) {
    for (int y = 0; y < image.height(); ++y) {
        const std::span<std::uint16_t> row = image.samples<std::uint16_t>(y);
        for (std::size_t x = std::size_t(image.width()); x-- > 0;)
            row[3 * x] = row[3 * x + 1] = row[3 * x + 2] = row[x];
    }
}

QString copyOut(LibRaw &raw, std::shared_ptr<ImageData> &image) {
    int width = 0;
    int height = 0;
    int colours = 0;
    int bits = 0;
    raw.get_mem_image_format(&width, &height, &colours, &bits);
    if (bits != 16 || (colours != 1 && colours != 3))
        return sentence(LIBRAW_NOT_IMPLEMENTED);
    image = std::make_shared<ImageData>(width, height, 3, SampleType::UInt16);
    if (image->isNull())
        return sentence(LIBRAW_UNSUFFICIENT_MEMORY);
    const int code = raw.copy_mem_image(image->row(0), int(image->rowBytes()), 0);
    if (code != LIBRAW_SUCCESS)
        return sentence(code);
    if (colours == 1)
        greyToRgb(*image);
    image->setIccProfile(srgbProfile());
    return {};
}

} // namespace

Decoded developRaw(const QString &path, bool halfSize, const RunControl &control) {
    Decoded result;
    result.bits = 16;
    const std::unique_ptr<LibRaw> raw(new (std::nothrow) LibRaw);
    if (!raw) {
        result.error = sentence(LIBRAW_UNSUFFICIENT_MEMORY);
        return result;
    }
    Watch watch{&control};
    raw->set_progress_handler(onProgress, &watch);
    raw->set_dataerror_handler(onDamage, &watch);
    const std::stop_callback onStop(control.stop, [&raw] { raw->setCancelFlag(); });
    setParameters(*raw, halfSize);

    int code = raw->open_file(QFile::encodeName(path).constData());
    if (code == LIBRAW_SUCCESS) {
        const libraw_image_sizes_t &sizes = raw->imgdata.sizes;
        result.error = limits::checkSize(std::max(sizes.raw_width, sizes.width),
                                         std::max(sizes.raw_height, sizes.height), QFileInfo(path).size(),
                                         PixelsPerByte);
        if (!result.error.isEmpty())
            return result;
        followDng(*raw);
        code = raw->unpack();
    }
    if (code == LIBRAW_SUCCESS && !watch.damaged)
        code = raw->dcraw_process();
    result.cancelled = control.stopped();
    if (result.cancelled)
        return result;
    if (watch.damaged)
        result.error = damageSentence(watch);
    else if (code != LIBRAW_SUCCESS)
        result.error = sentence(code);
    else
        result.error = copyOut(*raw, result.image);
    if (!result.error.isEmpty())
        result.image.reset();
    return result;
}

QSize rawSize(const QString &path) {
    const std::unique_ptr<LibRaw> raw(new (std::nothrow) LibRaw);
    if (!raw || raw->open_file(QFile::encodeName(path).constData()) != LIBRAW_SUCCESS ||
        raw->adjust_sizes_info_only() != LIBRAW_SUCCESS)
        return {};
    const libraw_image_sizes_t &sizes = raw->imgdata.sizes;
    return {sizes.iwidth, sizes.iheight};
}

} // namespace imageio
