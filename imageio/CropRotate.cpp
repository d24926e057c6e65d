#include "imageio/CropRotate.h"

#include <QDebug>
#include <QRectF>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <limits>

namespace imageio {

namespace {

constexpr double SizeTolerance = 2;    ///< pixels by which roundings of sizes may differ
constexpr double LeastRotation = 1e-5; ///< radians; moves the corner of 60,000 pixels by less than one

struct Placement {
    double centreX = 0; ///< of the rectangle, in pixels of the image given
    double centreY = 0;
    int width = 0;
    int height = 0;
    double rotation = 0;
};

/// Where the rectangle lies in the image. See cropRotate() for the two things an image may cover.
Placement place(const ImageData &image, const QRectF &crop, double rotation) {
    const double c = std::abs(std::cos(rotation));
    const double s = std::abs(std::sin(rotation));
    const double boxWidth = crop.width() * c + crop.height() * s;
    const double boxHeight = crop.width() * s + crop.height() * c;
    const bool box = std::abs(boxWidth - image.width()) <= SizeTolerance &&
                     std::abs(boxHeight - image.height()) <= SizeTolerance;
    Placement p;
    p.rotation = rotation;
    p.width = std::max(1, int(std::lround(crop.width())));
    p.height = std::max(1, int(std::lround(crop.height())));
    const double left = box ? std::max(0.0, std::floor(crop.center().x() - boxWidth / 2)) : 0;
    const double top = box ? std::max(0.0, std::floor(crop.center().y() - boxHeight / 2)) : 0;
    p.centreX = crop.center().x() - left;
    p.centreY = crop.center().y() - top;
    return p;
}

/// Weights of the four samples around a position for cubic convolution (Keys 1981, a = -1/2).
std::array<double, 4> cubicWeights(double t) {
    return {((-0.5 * t + 1) * t - 0.5) * t, (1.5 * t - 2.5) * t * t + 1, ((-1.5 * t + 2) * t + 0.5) * t,
            (0.5 * t - 0.5) * t * t};
}

template <typename T>
void sample(const ImageData &image, double x, double y, T *to) {
    constexpr double Full = std::numeric_limits<T>::max();
    const int x0 = int(std::floor(x));
    const int y0 = int(std::floor(y));
    const std::array<double, 4> wx = cubicWeights(x - x0);
    const std::array<double, 4> wy = cubicWeights(y - y0);
    const auto channels = std::size_t(image.channels());
    std::array<double, 4> sum{};
    for (int j = 0; j < 4; ++j) {
        const T *row = image.samples<T>(std::clamp(y0 - 1 + j, 0, image.height() - 1)).data();
        for (int i = 0; i < 4; ++i) {
            const T *p = row + std::size_t(std::clamp(x0 - 1 + i, 0, image.width() - 1)) * channels;
            const double alpha = channels == 4 ? p[3] / Full : 1;
            const double weight = wx[std::size_t(i)] * wy[std::size_t(j)];
            for (std::size_t c = 0; c < 3; ++c)
                sum[c] += weight * alpha * p[c];
            sum[3] += weight * alpha;
        }
    }
    for (std::size_t c = 0; c < 3; ++c)
        to[c] = T(std::clamp(sum[3] > 0 ? sum[c] / sum[3] : 0, 0.0, Full) + 0.5);
    if (channels == 4)
        to[3] = T(std::clamp(sum[3] * Full, 0.0, Full) + 0.5);
}

template <typename T>
void turn(const ImageData &image, const Placement &p, ImageData &result) {
    const double c = std::cos(p.rotation);
    const double s = std::sin(p.rotation);
    for (int j = 0; j < p.height; ++j) {
        T *to = result.samples<T>(j).data();
        const double dy = j + 0.5 - p.height / 2.0;
        for (int i = 0; i < p.width; ++i, to += result.channels()) {
            const double dx = i + 0.5 - p.width / 2.0;
            sample(image, p.centreX + c * dx + s * dy - 0.5, p.centreY - s * dx + c * dy - 0.5, to);
        }
    }
}

void cut(const ImageData &image, int left, int top, ImageData &result) {
    const std::size_t offset = std::size_t(left) * (image.rowBytes() / std::size_t(image.width()));
    for (int y = 0; y < result.height(); ++y)
        std::memcpy(result.row(y), image.row(top + y) + offset, result.rowBytes());
}

} // namespace

ImageRef cropRotate(const ImageRef &image, const QVariantMap &imageData) {
    QRectF crop = imageData.value(QStringLiteral("cropRect")).toRectF();
    double rotation = std::remainder(imageData.value(QStringLiteral("rotation")).toDouble(), 2 * M_PI);
    if (!std::isfinite(rotation) || std::abs(rotation) < LeastRotation)
        rotation = 0;
    const QRectF whole(0, 0, image->width(), image->height());
    if (crop.isEmpty())
        crop = whole;
    // A reader may hand on the picture's own crop in fractions, as (0, 0, 1, 1).
    if (crop.right() <= 1 && crop.bottom() <= 1)
        crop = QRectF(crop.x() * whole.width(), crop.y() * whole.height(), crop.width() * whole.width(),
                      crop.height() * whole.height());
    Placement p = place(*image, crop, rotation);
    const QRectF covered(p.centreX - p.width / 2.0, p.centreY - p.height / 2.0, p.width, p.height);
    if (rotation == 0 && !covered.intersects(whole)) {
        qWarning("The crop lies outside the picture and was not applied.");
        return image;
    }
    const bool sameSize = std::abs(p.width - image->width()) <= SizeTolerance &&
                          std::abs(p.height - image->height()) <= SizeTolerance;
    if (rotation == 0 && sameSize)
        return image;
    // The rectangle's own edge is rounded, not that of its rounded size about its centre.
    const int left = std::clamp(int(std::lround(p.centreX - crop.width() / 2)), 0, image->width() - 1);
    const int top = std::clamp(int(std::lround(p.centreY - crop.height() / 2)), 0, image->height() - 1);
    if (rotation == 0) {
        p.width = std::min(p.width, image->width() - left);
        p.height = std::min(p.height, image->height() - top);
    }
    auto result = std::make_shared<ImageData>(p.width, p.height, image->channels(), image->type());
    if (result->isNull())
        return nullptr;
    result->setIccProfile(image->iccProfile());
    if (rotation == 0)
        cut(*image, left, top, *result);
    else if (image->bitDepth() == 8)
        turn<std::uint8_t>(*image, p, *result);
    else
        turn<std::uint16_t>(*image, p, *result);
    return result;
}

} // namespace imageio
