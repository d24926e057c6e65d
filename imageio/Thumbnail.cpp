#include "imageio/Thumbnail.h"

#include "imageio/AtomicFile.h"
#include "imageio/ColourProfile.h"
#include "imageio/ImageReading.h"
#include "imageio/PixelConversion.h"
#include "imageio/PixelEncoder.h"
#include "imageio/Text.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>

namespace imageio {

namespace {

constexpr int MaxSide = 8192;

/// Sums of whole rows over columns of the small picture. Colour is weighted by alpha, so that what
/// lies hidden under transparency does not shine through.
class AreaSums {
public:
    AreaSums(int fromWidth, int toWidth, int channels)
        : m_channels(std::size_t(channels))
        , m_sums(std::size_t(toWidth) * 5) {
        for (int i = 0; i <= toWidth; ++i)
            m_edges.push_back(int(std::int64_t(i) * fromWidth / toWidth));
    }

    void add(const std::byte *row) {
        const auto *samples = reinterpret_cast<const std::uint8_t *>(row);
        for (std::size_t i = 0; i + 1 < m_edges.size(); ++i) {
            std::uint64_t *sum = &m_sums[i * 5];
            for (auto x = std::size_t(m_edges[i]); x < std::size_t(m_edges[i + 1]); ++x) {
                const std::uint8_t *p = samples + x * m_channels;
                const std::uint64_t alpha = m_channels == 4 ? p[3] : 255;
                for (std::size_t c = 0; c < 3; ++c)
                    sum[c] += p[c] * alpha;
                sum[3] += alpha;
                ++sum[4];
            }
        }
    }

    void take(std::span<std::uint8_t> to) {
        for (std::size_t i = 0; i + 1 < m_edges.size(); ++i) {
            const std::uint64_t *sum = &m_sums[i * 5];
            for (std::size_t c = 0; c < 3; ++c)
                to[i * m_channels + c] = std::uint8_t(sum[3] ? (sum[c] + sum[3] / 2) / sum[3] : 0);
            if (m_channels == 4)
                to[i * 4 + 3] = std::uint8_t((sum[3] + sum[4] / 2) / sum[4]);
        }
        std::ranges::fill(m_sums, 0u);
    }

private:
    std::size_t m_channels;
    std::vector<int> m_edges;
    std::vector<std::uint64_t> m_sums;
};

bool convertToSrgb(ImageData &image, const QByteArray &icc) {
    if (isSrgb(icc))
        return true;
    const Layout layout = image.hasAlpha() ? Layout::Rgba8 : Layout::Rgb8;
    const ColourTransform transform = ColourTransform::toSrgb(icc, layout, layout);
    if (!transform.isValid())
        return false;
    for (int y = 0; y < image.height(); ++y)
        transform.apply(image.row(y), image.row(y), std::size_t(image.width()));
    return true;
}

} // namespace

std::shared_ptr<ImageData> shrinkToSrgb(const ImageData &image, int side, int channels) {
    const int longest = std::max(image.width(), image.height());
    const double scale = std::min(1.0, double(side) / longest);
    const int width = std::clamp(int(std::lround(image.width() * scale)), 1, image.width());
    const int height = std::clamp(int(std::lround(image.height() * scale)), 1, image.height());
    const int kept = image.hasAlpha() ? channels : 3;
    auto small = std::make_shared<ImageData>(width, height, kept, SampleType::UInt8);
    if (small->isNull())
        return nullptr;
    AreaSums sums(image.width(), width, kept);
    std::vector<std::byte> buffer;
    int y = 0;
    for (int row = 0; row < height; ++row) {
        const int end = int(std::int64_t(row + 1) * image.height() / height);
        for (; y < end; ++y)
            sums.add(convertRows(image, y, 1, {8, kept}, buffer));
        sums.take(small->samples<std::uint8_t>(row));
    }
    convertToSrgb(*small, image.iccProfile());
    return small;
}

WriteResult writeThumbnailOf(const QString &source, const QString &target, int side,
                             const RunControl &control) {
    WriteResult result;
    side = std::clamp(side, 1, MaxSide);
    const Opened opened = openPicture(source, side, control);
    result.cancelled = opened.cancelled;
    result.error = opened.error;
    if (!opened.image)
        return result;
    const bool png = QFileInfo(target).suffix().compare(QLatin1String("png"), Qt::CaseInsensitive) == 0;
    const auto small = shrinkToSrgb(*opened.image, side, png ? 4 : 3);
    if (!small) {
        result.error = Text::tr("There is not enough memory for this picture.");
        return result;
    }
    const EncodePlan plan = planEncoding(*small, png ? QStringLiteral("png") : QStringLiteral("jpg"),
                                         {{QStringLiteral("Compression"), QStringLiteral("jpeg:90")}});
    AtomicFile file;
    result.error = file.begin(target);
    if (result.error.isEmpty()) {
        const Encoded encoded = encodePixels(*small, plan, file.temporaryPath(), control);
        result.cancelled = encoded.cancelled;
        result.error = encoded.error;
    }
    if (!result.cancelled && result.error.isEmpty()) {
        result.fileSize = QFileInfo(file.temporaryPath()).size();
        result.error = file.commit();
    }
    result.outputPath = target;
    return result;
}

} // namespace imageio
