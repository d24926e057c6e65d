#include "items/TSelectionPreview.h"

#include "items/TileNodes.h"

#include <QQuickWindow>

#include <cmath>
#include <utility>

namespace {

ImageRef imageOf(const QVariantMap &data) {
    return data.value(QStringLiteral("image")).value<std::shared_ptr<ImageData>>();
}

QRectF regionOf(const QVariantMap &data) {
    const QVariant region = data.value(QStringLiteral("requestRoi"));
    if (!region.isValid())
        return {};
    const double scale = data.value(QStringLiteral("scale"), 1.0).toDouble();
    const QRectF rect = region.toRectF();
    return {rect.topLeft() * scale, rect.size() * scale};
}

} // namespace

TSelectionPreview::TSelectionPreview(QQuickItem *parent)
    : QQuickItem(parent) {
    setFlag(ItemHasContents);
    connect(&m_loader, &TileLoader::tilesMade, this, &QQuickItem::update);
}

void TSelectionPreview::setImageData(const QVariantMap &data) {
    m_imageData = data;
    const ImageRef image = imageOf(data);
    if (image != m_loader.image()) {
        m_loader.setImage(image);
        m_imageChanged = true;
    }
    m_geometry.pictureRect = regionOf(data);
    m_geometry.pixelSize = image ? QSizeF(image->width(), image->height()) : QSizeF();
    changed();
    Q_EMIT imageDataChanged();
}

void TSelectionPreview::setShowImage(bool show) {
    if (show == m_showImage)
        return;
    m_showImage = show;
    changed();
    Q_EMIT showImageChanged();
}

void TSelectionPreview::setSrgbFallback(bool on) {
    if (on == m_srgbFallback)
        return;
    m_srgbFallback = on;
    m_loader.setTakenForSrgb(on);
    remakeTiles();
    m_imageChanged = true;
    changed();
    Q_EMIT srgbFallbackChanged();
}

void TSelectionPreview::setImageSize(const QSizeF &size) {
    if (size == m_geometry.imageSize)
        return;
    m_geometry.imageSize = size;
    changed();
    Q_EMIT geometryPropertyChanged();
}

void TSelectionPreview::setCropRect(const QRectF &rect) {
    if (rect == m_geometry.cropRect)
        return;
    m_geometry.cropRect = rect;
    changed();
    Q_EMIT geometryPropertyChanged();
}

void TSelectionPreview::setImageRotation(double radians) {
    if (radians == m_geometry.rotation)
        return;
    m_geometry.rotation = radians;
    changed();
    Q_EMIT geometryPropertyChanged();
}

void TSelectionPreview::setViewportStartX(double fraction) {
    if (fraction == m_startX)
        return;
    m_startX = fraction;
    changed();
    Q_EMIT geometryPropertyChanged();
}

void TSelectionPreview::setViewportEndX(double fraction) {
    if (fraction == m_endX)
        return;
    m_endX = fraction;
    changed();
    Q_EMIT geometryPropertyChanged();
}

void TSelectionPreview::setViewport(QQuickItem *item) {
    if (item == m_viewport)
        return;
    m_viewport = item;
    changed();
    Q_EMIT geometryPropertyChanged();
}

void TSelectionPreview::changed() {
    m_view = currentView();
    if (std::exchange(m_complete, false))
        Q_EMIT completeChanged();
    update();
}

TSelectionPreview::View TSelectionPreview::currentView() const {
    View view;
    if (!window() || !m_geometry.isDrawable())
        return view;
    const QQuickItem *seenThrough = m_viewport ? m_viewport.data() : window()->contentItem();
    view.viewportInItem = mapRectFromItem(seenThrough, QRectF(QPointF(0, 0), seenThrough->size()));
    const QTransform toItem = m_geometry.pixelsToItem();
    bool invertible = false;
    const QTransform toPixels = toItem.inverted(&invertible);
    if (!invertible)
        return view;
    view.pixels = toPixels.mapRect(view.viewportInItem & boundingRect());
    const QTransform toScene = toItem * itemTransform(nullptr, nullptr);
    view.zoom = std::hypot(toScene.m11(), toScene.m12()) * window()->effectiveDevicePixelRatio();
    return view;
}

void TSelectionPreview::followWindow() {
    // Scrolling and zooming move an ancestor, of which the item hears nothing; each frame looks.
    if (m_showImage && isVisible() && currentView() != m_view)
        changed();
}

void TSelectionPreview::itemChange(ItemChange change, const ItemChangeData &value) {
    if (change == ItemSceneChange) {
        disconnect(m_windowConnection);
        if (value.window)
            m_windowConnection =
                connect(value.window, &QQuickWindow::afterAnimating, this, &TSelectionPreview::followWindow);
        changed();
    }
    QQuickItem::itemChange(change, value);
}

void TSelectionPreview::geometryChange(const QRectF &now, const QRectF &before) {
    QQuickItem::geometryChange(now, before);
    m_geometry.itemSize = now.size();
    changed();
}

// The scene graph is going.
void TSelectionPreview::releaseResources() {
    remakeTiles();
}

void TSelectionPreview::remakeTiles() {
    const ImageRef image = m_loader.image();
    m_loader.setImage(nullptr);
    m_loader.setImage(image);
}

QSGNode *TSelectionPreview::updatePaintNode(QSGNode *node, UpdatePaintNodeData *) {
    auto *tiles = static_cast<TileNodes *>(node);
    if (!tiles)
        tiles = new TileNodes;
    if (std::exchange(m_imageChanged, false))
        tiles->clear();
    if (!m_showImage || !m_loader.image() || !m_geometry.isDrawable()) {
        tiles->clear();
        m_loader.want({});
        return tiles;
    }
    const QRectF seen = m_view.viewportInItem;
    const QRectF clip(seen.x() + seen.width() * m_startX, seen.y(), seen.width() * (m_endX - m_startX),
                      seen.height());
    tiles->place(m_geometry.pixelsToItem(), clip & boundingRect());
    const TileNodes::Wanted wanted = tiles->show(window(), TileGrid(m_geometry.pixelSize.toSize()),
                                                 m_view.pixels, m_view.zoom, m_loader.take());
    m_loader.want(wanted.missing);
    if (wanted.uploadsLeft)
        QMetaObject::invokeMethod(this, &QQuickItem::update, Qt::QueuedConnection);
    if (wanted.missing.empty() && !wanted.uploadsLeft && !std::exchange(m_complete, true)) {
        QMetaObject::invokeMethod(this, &TSelectionPreview::completeChanged, Qt::QueuedConnection);
    }
    return tiles;
}
