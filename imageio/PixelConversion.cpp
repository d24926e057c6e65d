#include "imageio/PixelConversion.h"

#include <algorithm>
#include <limits>

namespace imageio {

namespace {

template <typename To, typename From>
To depth(From value) {
    if constexpr (sizeof(To) == sizeof(From))
        return value;
    else if constexpr (sizeof(To) > sizeof(From))
        return To(value * 257);
    else
        return To((std::uint32_t(value) * 255 + 32767) / 65535);
}

template <typename T>
T overWhite(T value, T alpha) {
    constexpr std::uint64_t Full = std::numeric_limits<T>::max();
    return T((std::uint64_t(value) * alpha + Full * (Full - alpha) + Full / 2) / Full);
}

template <typename From, typename To>
void convertRow(std::span<const From> from, To *to, int channels, bool flatten) {
    if (!flatten) {
        for (const From value : from)
            *to++ = depth<To>(value);
        return;
    }
    for (std::size_t i = 0; i < from.size(); i += std::size_t(channels)) {
        for (std::size_t c = 0; c < 3; ++c)
            *to++ = depth<To>(overWhite(from[i + c], from[i + 3]));
    }
}

template <typename T>
void divideByAlpha(std::span<T> row) {
    constexpr std::uint64_t Full = std::numeric_limits<T>::max();
    for (std::size_t i = 0; i < row.size(); i += 4) {
        const std::uint64_t alpha = row[i + 3];
        for (std::size_t c = 0; c < 3 && alpha > 0; ++c)
            row[i + c] = T(std::min(Full, (row[i + c] * Full + alpha / 2) / alpha));
    }
}

} // namespace

const std::byte *convertRows(const ImageData &image, int y, int rows, RowFormat to,
                             std::vector<std::byte> &buffer) {
    const bool flatten = image.hasAlpha() && to.channels == 3;
    if (!flatten && to.bits == image.bitDepth())
        return image.row(y);
    const std::size_t rowBytes =
        std::size_t(image.width()) * std::size_t(flatten ? 3 : image.channels()) * std::size_t(to.bits / 8);
    buffer.resize(rowBytes * std::size_t(rows));
    for (int i = 0; i < rows; ++i) {
        std::byte *out = buffer.data() + rowBytes * std::size_t(i);
        const auto run = [&]<typename From, typename To>(From, To) {
            convertRow(image.samples<From>(y + i), reinterpret_cast<To *>(out), image.channels(), flatten);
        };
        if (image.bitDepth() == 8)
            to.bits == 8 ? run(std::uint8_t(), std::uint8_t()) : run(std::uint8_t(), std::uint16_t());
        else
            to.bits == 8 ? run(std::uint16_t(), std::uint8_t()) : run(std::uint16_t(), std::uint16_t());
    }
    return buffer.data();
}

void removePremultiplication(ImageData &image, int y, int rows) {
    for (int i = y; i < y + rows; ++i) {
        if (image.bitDepth() == 8)
            divideByAlpha(image.samples<std::uint8_t>(i));
        else
            divideByAlpha(image.samples<std::uint16_t>(i));
    }
}

} // namespace imageio
