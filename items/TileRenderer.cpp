#include "items/TileRenderer.h"

#include <algorithm>
#include <array>
#include <vector>

namespace {

/// Sums of one row of output pixels over the source rows it stands for.
template <typename T>
void addRow(const ImageData &image, int y, int firstX, int columns, int step, std::vector<quint64> &sums) {
    const auto row = image.samples<T>(y);
    const int channels = image.channels();
    const int lastX = image.width();
    for (int column = 0; column < columns; ++column) {
        const int from = firstX + column * step;
        const int to = std::min(from + step, lastX);
        quint64 *sum = &sums[std::size_t(column) * 5];
        for (int x = from; x < to; ++x) {
            const T *pixel = &row[std::size_t(x) * std::size_t(channels)];
            const quint64 alpha = channels == 4 ? pixel[3] : std::numeric_limits<T>::max();
            sum[0] += pixel[0] * alpha;
            sum[1] += pixel[1] * alpha;
            sum[2] += pixel[2] * alpha;
            sum[3] += alpha;
            ++sum[4];
        }
    }
}

template <typename T>
QImage reduce(const ImageData &image, const QRect &inLevel, int step) {
    QImage out(inLevel.size(), QImage::Format_RGBA8888);
    if (out.isNull())
        return out;
    constexpr quint64 Max = std::numeric_limits<T>::max();
    std::vector<quint64> sums(std::size_t(inLevel.width()) * 5);
    for (int y = 0; y < inLevel.height(); ++y) {
        std::ranges::fill(sums, 0);
        const int from = (inLevel.y() + y) * step;
        const int to = std::min(from + step, image.height());
        for (int line = from; line < to; ++line)
            addRow<T>(image, line, inLevel.x() * step, inLevel.width(), step, sums);
        uchar *target = out.scanLine(y);
        for (int x = 0; x < inLevel.width(); ++x) {
            const quint64 *sum = &sums[std::size_t(x) * 5];
            const quint64 weight = std::max<quint64>(1, sum[3]);
            const auto toByte = [](quint64 value) { return uchar((value * 255 + Max / 2) / Max); };
            for (int c = 0; c < 3; ++c)
                target[4 * x + c] = toByte(sum[c] / weight);
            target[4 * x + 3] = toByte(sum[3] / std::max<quint64>(1, sum[4]));
        }
    }
    return out;
}

/// `inner` with one pixel around it, repeated where `wanted` leaves the picture.
QImage withBorder(const QImage &available, const QRect &availableRect, const QRect &wanted) {
    QImage out(wanted.size(), available.format());
    for (int y = 0; y < wanted.height(); ++y) {
        const int sourceY = std::clamp(wanted.y() + y, availableRect.top(), availableRect.bottom());
        const auto *from =
            reinterpret_cast<const quint32 *>(available.constScanLine(sourceY - availableRect.y()));
        auto *to = reinterpret_cast<quint32 *>(out.scanLine(y));
        for (int x = 0; x < wanted.width(); ++x) {
            const int sourceX = std::clamp(wanted.x() + x, availableRect.left(), availableRect.right());
            to[x] = from[sourceX - availableRect.x()];
        }
    }
    return out;
}

} // namespace

QImage renderTile(const ImageData &image, const TileKey &key, const QColorSpace &display) {
    if (image.isNull())
        return {};
    const TileGrid grid(QSize(image.width(), image.height()));
    const QRect tile = grid.tileInLevel(key);
    if (tile.isEmpty())
        return {};
    const QRect wanted = tile.adjusted(-TileBorder, -TileBorder, TileBorder, TileBorder);
    const QRect available = wanted & QRect(QPoint(0, 0), grid.levelSize(key.level));
    QImage pixels = image.type() == SampleType::UInt8 ? reduce<quint8>(image, available, 1 << key.level)
                                                      : reduce<quint16>(image, available, 1 << key.level);
    if (pixels.isNull())
        return {};
    const QColorSpace source = image.iccProfile().isEmpty() ? QColorSpace(QColorSpace::SRgb)
                                                            : QColorSpace::fromIccProfile(image.iccProfile());
    if (source.isValid() && display.isValid() && source != display) {
        pixels.setColorSpace(source);
        pixels.convertToColorSpace(display);
    }
    QImage bordered = withBorder(pixels, available, wanted);
    if (image.hasAlpha())
        bordered.convertTo(QImage::Format_RGBA8888_Premultiplied);
    else
        bordered.reinterpretAsFormat(QImage::Format_RGBX8888);
    return bordered;
}
