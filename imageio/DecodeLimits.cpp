#include "imageio/DecodeLimits.h"

#include "imageio/Text.h"

namespace imageio::limits {

QString checkSize(qint64 width, qint64 height, qint64 fileSize, double pixelsPerByte) {
    if (width <= 0 || height <= 0)
        return Text::tr("The file says that its picture has no pixels.");
    if (width > MaxSide || height > MaxSide)
        return Text::tr("The picture is too large: %1 x %2 pixels, and a side may have at most %3.")
            .arg(width)
            .arg(height)
            .arg(MaxSide);
    const qint64 pixels = width * height;
    if (pixels > MaxPixels)
        return Text::tr("The picture is too large: %1 x %2 pixels, and at most %3 megapixels can be opened.")
            .arg(width)
            .arg(height)
            .arg(MaxPixels / 1'000'000);
    if (pixelsPerByte > 0 && pixels > UncheckedPixels && double(pixels) > double(fileSize) * pixelsPerByte)
        return Text::tr("The file claims %1 x %2 pixels, but its %3 bytes can't hold so many.")
            .arg(width)
            .arg(height)
            .arg(fileSize);
    return {};
}

QString metadataTooLarge() {
    return Text::tr("The file's profile or text data is too large to be genuine.");
}

QString endsTooEarly() {
    return Text::tr("The file ends too early; part of the picture is missing.");
}

QString damagedHeader(FileKind kind) {
    return Text::tr("The %1 header is damaged.").arg(kindName(kind));
}

} // namespace imageio::limits
