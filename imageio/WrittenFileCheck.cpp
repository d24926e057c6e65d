#include "imageio/WrittenFileCheck.h"

#include "imageio/CameraMetadata.h"
#include "imageio/FileProbe.h"
#include "imageio/PixelConversion.h"
#include "imageio/RawDecoder.h"
#include "imageio/Text.h"

#include <OpenImageIO/imageio.h>

#include <algorithm>
#include <cstring>

namespace imageio {

namespace {

constexpr int SampledRows = 16;
constexpr int LeastRawSide = 22;
/// PNG rows can only be reached through all rows before them.
constexpr int SequentialRows = 256;

QString differs(const char *what) {
    return Text::tr("The written file was read back and its %1 is not what was saved.").arg(Text::tr(what));
}

std::vector<int> rowsToCompare(int height, OutputKind kind) {
    const int reach = kind == OutputKind::Png ? std::min(height, SequentialRows) : height;
    std::vector<int> rows;
    for (int i = 0; i < std::min(SampledRows, reach); ++i)
        rows.push_back(int(std::int64_t(i) * (reach - 1) / std::max(1, std::min(SampledRows, reach) - 1)));
    return rows;
}

bool pixelsMatch(OIIO::ImageInput &input, const ImageData &image, const EncodePlan &plan) {
    const OIIO::TypeDesc type = plan.bits == 8 ? OIIO::TypeDesc::UINT8 : OIIO::TypeDesc::UINT16;
    const std::size_t rowBytes = std::size_t(image.width()) * std::size_t(plan.channels) * type.size();
    std::vector<std::byte> got(rowBytes);
    std::vector<std::byte> buffer;
    for (const int y : rowsToCompare(image.height(), plan.kind)) {
        if (!input.read_scanlines(0, 0, y, y + 1, 0, 0, plan.channels, type, got.data()))
            return false;
        const std::byte *wanted = convertRows(image, y, 1, {plan.bits, plan.channels}, buffer);
        if (std::memcmp(got.data(), wanted, rowBytes) != 0)
            return false;
    }
    return true;
}

bool endsWithMarker(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.seek(file.size() - 2) && file.read(2) == "\xff\xd9";
}

} // namespace

QString checkWrittenFile(const QString &path, const ImageData &image, const EncodePlan &plan) {
    const FileFacts facts = probeFile(path);
    if (!facts.error.isEmpty())
        return Text::tr("The written file was read back and is not whole: %1").arg(facts.error);
    if (plan.kind == OutputKind::Dng) {
        // The RAW library takes smaller ones for no picture.
        const bool readable = std::min(image.width(), image.height()) >= LeastRawSide;
        return !readable || rawSize(path) == QSize(image.width(), image.height())
                   ? QString()
                   : differs(QT_TRANSLATE_NOOP("ImageFiles", "size"));
    }
    if (facts.width != image.width() || facts.height != image.height())
        return differs(QT_TRANSLATE_NOOP("ImageFiles", "size"));
    if (facts.bits != plan.bits)
        return differs(QT_TRANSLATE_NOOP("ImageFiles", "bit depth"));
    if (plan.kind == OutputKind::Jpeg && !endsWithMarker(path))
        return differs(QT_TRANSLATE_NOOP("ImageFiles", "end"));

    const CameraMetadata metadata = readCameraMetadata(path);
    if (metadata.orientation != 1)
        return differs(QT_TRANSLATE_NOOP("ImageFiles", "orientation"));
    const bool carriesProfile = plan.kind != OutputKind::Bmp && !image.iccProfile().isEmpty();
    if (carriesProfile && metadata.icc.isEmpty())
        return differs(QT_TRANSLATE_NOOP("ImageFiles", "colour profile"));

    const bool lossless = plan.kind == OutputKind::Png || plan.kind == OutputKind::Tiff;
    if (!lossless)
        return {};
    OIIO::ImageSpec config;
    config.attribute("oiio:UnassociatedAlpha", 1);
    OIIO::ImageSpec spec;
    const auto input = OIIO::ImageInput::create(pluginName(facts.kind));
    if (!input || !input->open(path.toStdString(), spec, config) || spec.nchannels != plan.channels ||
        !pixelsMatch(*input, image, plan))
        return differs(QT_TRANSLATE_NOOP("ImageFiles", "picture"));
    return {};
}

} // namespace imageio
