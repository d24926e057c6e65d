#include "imageio/JpegDecoder.h"

#include "imageio/DecodeLimits.h"
#include "imageio/RowSink.h"
#include "imageio/Text.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <csetjmp>
#include <cstdio>
#include <optional>

#include <jerror.h>
#include <jpeglib.h>

namespace imageio {

namespace {

constexpr int MaxScans = 1000;
constexpr int RowsPerCall = 32;

enum class Failure { None, Library, Damaged, EndsEarly, TooManyScans, Cancelled, Memory };

/// Everything that outlives a longjmp out of the library.
struct Session {
    jpeg_decompress_struct info{};
    jpeg_error_mgr errors{};
    jpeg_progress_mgr progress{};
    std::jmp_buf escape;
    Failure failure = Failure::None;
    bool sawEnd = false;
    std::array<char, JMSG_LENGTH_MAX> message{};
    std::FILE *file = nullptr;
    const RunControl *control = nullptr;
    std::optional<RowSink> sink;
    std::vector<std::byte> buffer;

    ~Session() {
        jpeg_destroy_decompress(&info);
        if (file)
            std::fclose(file);
    }
};

Session &session(j_common_ptr info) {
    return *static_cast<Session *>(info->client_data);
}

[[noreturn]] void leave(j_common_ptr info, Failure failure) {
    session(info).failure = failure;
    std::longjmp(session(info).escape, 1);
}

void onError(j_common_ptr info) {
    Session &s = session(info);
    (*info->err->format_message)(info, s.message.data());
    leave(info, info->err->msg_code == JERR_OUT_OF_MEMORY ? Failure::Memory : Failure::Library);
}

/// The library goes on after damage and fills the rest with grey. Stray bytes between markers are
/// harmless; damage to the picture's own data is not.
void onMessage(j_common_ptr info, int level) {
    if (level >= 0)
        return;
    switch (info->err->msg_code) {
    case JWRN_JPEG_EOF:
        session(info).sawEnd = true;
        break;
    case JWRN_HIT_MARKER:
        leave(info, session(info).sawEnd ? Failure::EndsEarly : Failure::Damaged);
    case JWRN_ADOBE_XFORM:
    case JWRN_BOGUS_ICC:
    case JWRN_EXTRANEOUS_DATA:
    case JWRN_JFIF_MAJOR:
    case JWRN_NOT_SEQUENTIAL:
    case JWRN_TOO_MUCH_DATA:
        break;
    default:
        leave(info, Failure::Damaged);
    }
}

void onProgress(j_common_ptr info) {
    if (session(info).control->stopped())
        leave(info, Failure::Cancelled);
    if (session(info).info.input_scan_number > MaxScans)
        leave(info, Failure::TooManyScans);
}

void quiet(j_common_ptr) {
}

void readRows(Session &s) {
    jpeg_decompress_struct &info = s.info;
    const std::size_t rowBytes = std::size_t(info.output_width) * std::size_t(info.output_components);
    std::array<JSAMPROW, RowsPerCall> rows{};
    while (info.output_scanline < info.output_height) {
        const int y = int(info.output_scanline);
        const int wanted = std::min(RowsPerCall, int(info.output_height) - y);
        for (int i = 0; i < wanted; ++i) {
            std::byte *row =
                s.sink->direct() ? s.sink->image()->row(y + i) : s.buffer.data() + rowBytes * std::size_t(i);
            rows[std::size_t(i)] = reinterpret_cast<JSAMPROW>(row);
        }
        int got = 0;
        while (got < wanted)
            got += int(jpeg_read_scanlines(&info, rows.data() + got, JDIMENSION(wanted - got)));
        if (!s.sink->direct())
            s.sink->put(y, got, s.buffer.data());
        s.control->report(double(y + got) / info.output_height, QStringLiteral("Reading"));
    }
}

/// Everything that may longjmp. No object with a destructor lives in this frame.
void run(Session &s, const FileFacts &facts, const QByteArray &icc, int shrink) {
    if (setjmp(s.escape) != 0)
        return;
    jpeg_create_decompress(&s.info);
    s.info.progress = &s.progress;
    jpeg_stdio_src(&s.info, s.file);
    jpeg_read_header(&s.info, TRUE);
    if (s.info.image_width != JDIMENSION(facts.width) || s.info.image_height != JDIMENSION(facts.height))
        leave(j_common_ptr(&s.info), Failure::Damaged);
    const bool grey = s.info.num_components == 1;
    const bool cmyk = s.info.num_components == 4;
    s.info.out_color_space = cmyk ? JCS_CMYK : (grey ? JCS_GRAYSCALE : JCS_RGB);
    s.info.scale_num = 1;
    s.info.scale_denom = unsigned(shrink);
    jpeg_start_decompress(&s.info);
    s.sink.emplace(SourceRows{int(s.info.output_width), int(s.info.output_height), s.info.output_components,
                              8, cmyk ? ColourModel::Cmyk : (grey ? ColourModel::Grey : ColourModel::Rgb),
                              s.info.saw_Adobe_marker != 0, false, icc});
    if (!s.sink->image())
        leave(j_common_ptr(&s.info), Failure::Memory);
    s.buffer.resize(s.sink->direct() ? 0
                                     : std::size_t(s.info.output_width) *
                                           std::size_t(s.info.output_components) * RowsPerCall);
    readRows(s);
    // A file of several scans that ends between two of them decodes to a coarse picture.
    if (s.sawEnd && (s.info.progressive_mode || s.info.comps_in_scan != s.info.num_components))
        leave(j_common_ptr(&s.info), Failure::EndsEarly);
}

QString sentence(const Session &s) {
    switch (s.failure) {
    case Failure::Library:
        return Text::tr("The JPEG data can't be decoded: %1.").arg(QString::fromLatin1(s.message.data()));
    case Failure::Damaged:
        return Text::tr("The JPEG data is damaged.");
    case Failure::EndsEarly:
        return limits::endsTooEarly();
    case Failure::TooManyScans:
        return Text::tr("The JPEG data has more than %1 passes.").arg(MaxScans);
    case Failure::Memory:
        return Text::tr("There is not enough memory for this picture.");
    case Failure::Cancelled:
    case Failure::None:
        break;
    }
    return {};
}

} // namespace

Decoded decodeJpeg(const QString &path, const FileFacts &facts, const QByteArray &icc, int shrink,
                   const RunControl &control) {
    Decoded result;
    Session s;
    s.control = &control;
    s.file = std::fopen(QFile::encodeName(path).constData(), "rb");
    if (!s.file) {
        result.error = Text::tr("The file can't be opened.");
        return result;
    }
    s.info.client_data = &s;
    s.info.err = jpeg_std_error(&s.errors);
    s.errors.error_exit = onError;
    s.errors.emit_message = onMessage;
    s.errors.output_message = quiet;
    s.progress.progress_monitor = onProgress;
    run(s, facts, icc, shrink);
    result.cancelled = s.failure == Failure::Cancelled;
    result.error = sentence(s);
    if (s.failure == Failure::None) {
        result.image = s.sink->image();
        if (s.info.density_unit != 0 && s.info.X_density > 1) {
            result.resolution = s.info.X_density;
            result.resolutionUnit = s.info.density_unit == 1 ? 2 : 3;
        }
    }
    return result;
}

} // namespace imageio
