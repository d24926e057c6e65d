#include "engine/core/PixelTransfer.h"

#include <cstring>
#include <type_traits>

namespace {

inline std::uint8_t narrowed(std::uint16_t v) {
    return std::uint8_t((std::uint32_t(v) * 255 + 32767) / 65535);
}

inline std::uint16_t quantized(float v) {
    return std::uint16_t(std::max(0.0f, std::min(1.0f, v)) * 65535.0f + 0.5f);
}

template <typename To, typename From>
inline To converted(From v) {
    if constexpr (std::is_same_v<To, From>)
        return v;
    else if constexpr (sizeof(To) > sizeof(From))
        return To(v * 257);
    else
        return narrowed(v);
}

template <typename T>
void loadSamples(const ImageData &source, const TRect &covered, const QSize &full, FloatTile &tile) {
    constexpr float unit = 1.0f / 65535.0f;
    const int channels = source.channels();
    const int used = std::min(channels, tile.channels);
    const TRect &area = tile.area;
    const int innerLeft = std::clamp(-area.x, 0, area.width);
    const int innerRight = std::clamp(full.width() - area.x, innerLeft, area.width);
    for (int y = area.y; y < Region::bottom(area); ++y) {
        const T *row = source.samples<T>(Region::mirrored(y, full.height()) - covered.y).data();
        const auto outer = [&](int from, int to) {
            for (int i = from; i < to; ++i) {
                const T *pixel =
                    row + std::ptrdiff_t(Region::mirrored(area.x + i, full.width()) - covered.x) * channels;
                for (int c = 0; c < used; ++c)
                    tile.planes[c].row(y)[i] = float(converted<std::uint16_t>(pixel[c])) * unit;
            }
        };
        outer(0, innerLeft);
        for (int c = 0; c < used && innerRight > innerLeft; ++c) {
            float *out = tile.planes[c].row(y);
            const T *in = row + std::ptrdiff_t(area.x + innerLeft - covered.x) * channels + c;
            for (int i = innerLeft; i < innerRight; ++i, in += channels)
                out[i] = float(converted<std::uint16_t>(*in)) * unit;
        }
        outer(innerRight, area.width);
    }
}

template <typename T>
void storeSamples(const FloatTile &tile, ImageData &target, const TRect &covered) {
    const int channels = target.channels();
    for (int y = tile.area.y; y < Region::bottom(tile.area); ++y) {
        T *row = target.samples<T>(y - covered.y).data() + std::ptrdiff_t(tile.area.x - covered.x) * channels;
        for (int c = 0; c < std::min(channels, tile.channels); ++c) {
            const float *in = tile.planes[c].row(y);
            T *out = row + c;
            for (int i = 0; i < tile.area.width; ++i, out += channels)
                *out = converted<T>(quantized(in[i]));
        }
    }
}

template <typename From, typename To>
void alphaSamples(const ImageData &source, const TRect &sourceCovers, ImageData &target,
                  const TRect &targetCovers, const TRect &area) {
    for (int y = area.y; y < Region::bottom(area); ++y) {
        const From *in =
            source.samples<From>(y - sourceCovers.y).data() + std::ptrdiff_t(area.x - sourceCovers.x) * 4;
        To *out = target.samples<To>(y - targetCovers.y).data() + std::ptrdiff_t(area.x - targetCovers.x) * 4;
        for (int i = 0; i < area.width; ++i)
            out[4 * i + 3] = converted<To>(in[4 * i + 3]);
    }
}

template <typename F>
void bySampleType(SampleType type, F &&work) {
    if (type == SampleType::UInt8)
        work(std::uint8_t{});
    else
        work(std::uint16_t{});
}

} // namespace

void PixelTransfer::load(const ImageData &source, const TRect &covered, const QSize &full, FloatTile &tile) {
    bySampleType(source.type(), [&](auto t) { loadSamples<decltype(t)>(source, covered, full, tile); });
}

void PixelTransfer::store(const FloatTile &tile, ImageData &target, const TRect &covered) {
    bySampleType(target.type(), [&](auto t) { storeSamples<decltype(t)>(tile, target, covered); });
}

void PixelTransfer::copyAlpha(const ImageData &source, const TRect &sourceCovers, ImageData &target,
                              const TRect &targetCovers, const TRect &area) {
    if (!source.hasAlpha() || !target.hasAlpha())
        return;
    bySampleType(source.type(), [&](auto from) {
        bySampleType(target.type(), [&](auto to) {
            alphaSamples<decltype(from), decltype(to)>(source, sourceCovers, target, targetCovers, area);
        });
    });
}

std::shared_ptr<ImageData> PixelTransfer::copied(const ImageData &source, const TRect &covered,
                                                 const TRect &area, SampleType type) {
    auto copy = std::make_shared<ImageData>(area.width, area.height, source.channels(), type);
    if (copy->isNull())
        return nullptr;
    copy->setIccProfile(source.iccProfile());
    bySampleType(source.type(), [&](auto from) {
        bySampleType(type, [&](auto to) {
            using From = decltype(from);
            using To = decltype(to);
            for (int y = 0; y < area.height; ++y) {
                const From *in = source.samples<From>(area.y + y - covered.y).data() +
                                 std::ptrdiff_t(area.x - covered.x) * source.channels();
                To *out = copy->samples<To>(y).data();
                const int count = area.width * source.channels();
                for (int i = 0; i < count; ++i)
                    out[i] = converted<To>(in[i]);
            }
        });
    });
    return copy;
}
