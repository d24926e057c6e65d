#include "imageio/JpegEncoder.h"

#include "imageio/PixelConversion.h"
#include "imageio/Text.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cmath>
#include <csetjmp>
#include <cstdio>

#include <jpeglib.h>

namespace imageio {

namespace {

constexpr int RowsPerCall = 16;

/// Everything that outlives a longjmp out of the library.
struct Session {
    jpeg_compress_struct info{};
    jpeg_error_mgr errors{};
    std::jmp_buf escape;
    std::FILE *file = nullptr;
    std::array<char, JMSG_LENGTH_MAX> message{};
    bool failed = false;
    bool cancelled = false;
    std::vector<std::byte> buffer;

    ~Session() {
        jpeg_destroy_compress(&info);
        if (file)
            std::fclose(file);
    }
};

[[noreturn]] void onError(j_common_ptr info) {
    Session &s = *static_cast<Session *>(info->client_data);
    (*info->err->format_message)(info, s.message.data());
    s.failed = true;
    std::longjmp(s.escape, 1);
}

void quiet(j_common_ptr) {
}

void setSubsampling(jpeg_compress_struct &info, const QString &subsampling) {
    const bool full = subsampling == u"4:4:4";
    info.comp_info[0].h_samp_factor = full ? 1 : 2;
    info.comp_info[0].v_samp_factor = full || subsampling == u"4:2:2" ? 1 : 2;
}

void configure(jpeg_compress_struct &info, const EncodePlan &plan) {
    const QString compression = plan.attributes.value(QStringLiteral("compression")).toString();
    jpeg_set_defaults(&info);
    jpeg_set_quality(&info, std::clamp(compression.section(QLatin1Char(':'), 1).toInt(), 1, 100), TRUE);
    setSubsampling(info, plan.attributes.value(QStringLiteral("jpeg:subsampling")).toString());
    if (plan.attributes.value(QStringLiteral("jpeg:progressive")).toInt() != 0)
        jpeg_simple_progression(&info);
    info.density_unit = plan.resolutionUnit == 3 ? 2 : 1;
    info.X_density = info.Y_density = UINT16(std::clamp(std::lround(plan.resolution), 1l, 65535l));
}

void writeRows(Session &s, const ImageData &image, const RunControl &control) {
    const std::size_t rowBytes = std::size_t(image.width()) * 3;
    std::array<JSAMPROW, RowsPerCall> rows{};
    for (int y = 0; y < image.height(); y += RowsPerCall) {
        s.cancelled = control.stopped();
        if (s.cancelled)
            return;
        const int count = std::min(RowsPerCall, image.height() - y);
        const auto *from = reinterpret_cast<const JSAMPLE *>(convertRows(image, y, count, {8, 3}, s.buffer));
        // The library takes rows that it may not change through a pointer that could.
        for (int i = 0; i < count; ++i)
            rows[std::size_t(i)] = const_cast<JSAMPROW>(from + rowBytes * std::size_t(i));
        jpeg_write_scanlines(&s.info, rows.data(), JDIMENSION(count));
        control.report(double(y + count) / image.height(), QStringLiteral("Writing"));
    }
}

/// Everything that may longjmp. No object with a destructor lives in this frame.
void run(Session &s, const ImageData &image, const EncodePlan &plan, const QByteArray &icc,
         const RunControl &control) {
    if (setjmp(s.escape) != 0)
        return;
    jpeg_create_compress(&s.info);
    jpeg_stdio_dest(&s.info, s.file);
    s.info.image_width = JDIMENSION(image.width());
    s.info.image_height = JDIMENSION(image.height());
    s.info.input_components = 3;
    s.info.in_color_space = JCS_RGB;
    configure(s.info, plan);
    jpeg_start_compress(&s.info, TRUE);
    if (!icc.isEmpty())
        jpeg_write_icc_profile(&s.info, reinterpret_cast<const JOCTET *>(icc.constData()),
                               unsigned(icc.size()));
    writeRows(s, image, control);
    if (!s.cancelled)
        jpeg_finish_compress(&s.info);
}

} // namespace

Encoded encodeJpeg(const ImageData &image, const EncodePlan &plan, const QString &path,
                   const RunControl &control) {
    Encoded result;
    if (std::max(image.width(), image.height()) > JPEG_MAX_DIMENSION) {
        result.error =
            Text::tr("A JPEG picture may have at most %1 pixels on a side.").arg(JPEG_MAX_DIMENSION);
        return result;
    }
    Session s;
    s.file = std::fopen(QFile::encodeName(path).constData(), "wb");
    if (!s.file) {
        result.error = Text::tr("The JPEG file can't be written.");
        return result;
    }
    s.info.client_data = &s;
    s.info.err = jpeg_std_error(&s.errors);
    s.errors.error_exit = onError;
    s.errors.output_message = quiet;
    run(s, image, plan, image.iccProfile(), control);
    result.cancelled = s.cancelled;
    if (s.failed)
        result.error =
            Text::tr("The picture can't be encoded as JPEG: %1.").arg(QString::fromLatin1(s.message.data()));
    else if (!s.cancelled && std::fflush(s.file) != 0)
        result.error = Text::tr("The JPEG file can't be written.");
    return result;
}

} // namespace imageio
