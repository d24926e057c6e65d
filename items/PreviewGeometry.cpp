#include "items/PreviewGeometry.h"

#include <QtMath>

bool PreviewGeometry::isDrawable() const {
    return !itemSize.isEmpty() && !imageSize.isEmpty() && !cropRect.isEmpty() && !pixelSize.isEmpty();
}

QTransform PreviewGeometry::pixelsToItem() const {
    const QRectF crop(cropRect.x() * imageSize.width(), cropRect.y() * imageSize.height(),
                      cropRect.width() * imageSize.width(), cropRect.height() * imageSize.height());
    const QRectF picture = pictureRect.isEmpty() ? QRectF(QPointF(0, 0), imageSize) : pictureRect;
    QTransform transform;
    transform.scale(itemSize.width() / crop.width(), itemSize.height() / crop.height());
    transform.translate(-crop.x(), -crop.y());
    transform.translate(crop.center().x(), crop.center().y());
    transform.rotate(qRadiansToDegrees(rotation));
    transform.translate(-crop.center().x(), -crop.center().y());
    transform.translate(picture.x(), picture.y());
    transform.scale(picture.width() / pixelSize.width(), picture.height() / pixelSize.height());
    return transform;
}
