#include "frontends/ImageDataUtils.h"

#include "contracts/ImageData.h"

namespace {

std::shared_ptr<ImageData> imageOf(const QVariant &entry) {
    return entry.value<std::shared_ptr<ImageData>>();
}

} // namespace

QVariant ImageDataUtils::blankImage() {
    return QVariant::fromValue(std::shared_ptr<ImageData>());
}

QSize ImageDataUtils::imageSize(const QVariant &image) {
    const std::shared_ptr<ImageData> data = imageOf(image);
    return data ? QSize(data->width(), data->height()) : QSize(0, 0);
}

bool ImageDataUtils::isEmpty(const QVariant &image) {
    const std::shared_ptr<ImageData> data = imageOf(image);
    return !data || data->isNull();
}

bool ImageDataUtils::isCameraInfoMissing(const QVariantMap &metadata) {
    return metadata.value(QStringLiteral("make")).toString().trimmed().isEmpty() ||
           metadata.value(QStringLiteral("model")).toString().trimmed().isEmpty();
}

bool ImageDataUtils::isLensCorrectable(const QVariantMap &metadata) {
    return !isCameraInfoMissing(metadata) &&
           !metadata.value(QStringLiteral("lens")).toString().trimmed().isEmpty() &&
           metadata.value(QStringLiteral("focalLength")).toDouble() > 0;
}

int ImageDataUtils::iso(const QVariantMap &metadata) {
    return qMax(0, qRound(metadata.value(QStringLiteral("iso")).toDouble()));
}

QString ImageDataUtils::uniqueCameraModel(const QVariantMap &metadata) {
    return metadata.value(QStringLiteral("uniqueCameraModel")).toString().trimmed();
}
