#pragma once

#include <QRectF>
#include <QSizeF>
#include <QTransform>

/// Where a picture lies in an item that shows its crop. All lengths of `imageSize`, `cropRect` (fractions
/// of it) and `pictureRect` are pixels of the whole picture as enlarged; `rotation` is in radians, clockwise.
struct PreviewGeometry {
    QSizeF itemSize;
    QSizeF imageSize;
    QRectF cropRect{0, 0, 1, 1};
    double rotation = 0;
    /// The part that the pixels cover; the whole picture when null.
    QRectF pictureRect;
    /// Pixels of the decoded image that cover pictureRect.
    QSizeF pixelSize;

    bool isDrawable() const;
    /// From pixels of the decoded image to item coordinates: the crop fills the item.
    QTransform pixelsToItem() const;
};
