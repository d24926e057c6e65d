#include "imageio/DecodeLimits.h"

namespace imageio::limits {

QString checkSize(qint64 width, qint64 height, qint64 fileSize, double pixelsPerByte) {
    if (width <= 0 || height <= 0)
        return QStringLiteral("The file says that its picture has no pixels.");
    if (width > MaxSide || height > MaxSide)
        return QStringLiteral("The picture is too large: %1 x %2 pixels, and a side may have at most %3.")
            .arg(width)
            .arg(height)
            .arg(MaxSide);
    const qint64 pixels = width * height;
    if (pixels > MaxPixels)
        return QStringLiteral(
                   "The picture is too large: %1 x %2 pixels, and at most %3 megapixels can be opened.")
            .arg(width)
            .arg(height)
            .arg(MaxPixels / 1'000'000);
    if (pixelsPerByte > 0 && pixels > UncheckedPixels && double(pixels) > double(fileSize) * pixelsPerByte)
        return QStringLiteral("The file claims %1 x %2 pixels, but its %3 bytes can't hold so many.")
            .arg(width)
            .arg(height)
            .arg(fileSize);
    return {};
}

QString metadataTooLarge() {
    return QStringLiteral("The file's profile or text data is too large to be genuine.");
}

QString endsTooEarly() {
    return QStringLiteral("The file ends too early; part of the picture is missing.");
}

QString damagedHeader(FileKind kind) {
    return QStringLiteral("The %1 header is damaged.").arg(kindName(kind));
}

} // namespace imageio::limits
