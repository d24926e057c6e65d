#pragma once

#include "items/PreviewGeometry.h"
#include "items/TileLoader.h"

#include <QQuickItem>
#include <QVariantMap>
#include <QtQmlIntegration/qqmlintegration.h>

/// Draws a picture of any size in the viewport or the navigator: tiles at the reduction that the present
/// zoom wants, over a coarse whole until they are there. `imageData` is an image map of the reader
/// or a result of the engine, whose `requestRoi` and `scale` say where its pixels belong.
class TSelectionPreview : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QVariantMap imageData READ imageData WRITE setImageData NOTIFY imageDataChanged)
    Q_PROPERTY(bool showImage READ showImage WRITE setShowImage NOTIFY showImageChanged)
    /// Takes every picture for an sRGB one, whatever its profile says.
    Q_PROPERTY(bool srgbFallback READ srgbFallback WRITE setSrgbFallback NOTIFY srgbFallbackChanged)
    Q_PROPERTY(QSizeF imageSize READ imageSize WRITE setImageSize NOTIFY geometryPropertyChanged)
    Q_PROPERTY(QRectF cropRect READ cropRect WRITE setCropRect NOTIFY geometryPropertyChanged)
    /// Radians, clockwise.
    Q_PROPERTY(double imageRotation READ imageRotation WRITE setImageRotation NOTIFY geometryPropertyChanged)
    /// The part of the window's width, as fractions of the viewport, in which the picture is drawn.
    Q_PROPERTY(
        double viewportStartX READ viewportStartX WRITE setViewportStartX NOTIFY geometryPropertyChanged)
    Q_PROPERTY(double viewportEndX READ viewportEndX WRITE setViewportEndX NOTIFY geometryPropertyChanged)
    /// The item whose bounds are the viewport; the window's content when null.
    Q_PROPERTY(QQuickItem *viewport READ viewport WRITE setViewport NOTIFY geometryPropertyChanged)
    /// Whether every visible tile is there at the level that the zoom asks for.
    Q_PROPERTY(bool complete READ isComplete NOTIFY completeChanged)
public:
    explicit TSelectionPreview(QQuickItem *parent = nullptr);

    QVariantMap imageData() const { return m_imageData; }
    void setImageData(const QVariantMap &data);
    bool showImage() const { return m_showImage; }
    void setShowImage(bool show);
    bool srgbFallback() const { return m_srgbFallback; }
    void setSrgbFallback(bool on);
    QSizeF imageSize() const { return m_geometry.imageSize; }
    void setImageSize(const QSizeF &size);
    QRectF cropRect() const { return m_geometry.cropRect; }
    void setCropRect(const QRectF &rect);
    double imageRotation() const { return m_geometry.rotation; }
    void setImageRotation(double radians);
    double viewportStartX() const { return m_startX; }
    void setViewportStartX(double fraction);
    double viewportEndX() const { return m_endX; }
    void setViewportEndX(double fraction);
    QQuickItem *viewport() const { return m_viewport; }
    void setViewport(QQuickItem *item);
    bool isComplete() const { return m_complete; }

Q_SIGNALS:
    void imageDataChanged();
    void showImageChanged();
    void srgbFallbackChanged();
    void geometryPropertyChanged();
    void completeChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;
    void itemChange(ItemChange change, const ItemChangeData &value) override;
    void geometryChange(const QRectF &now, const QRectF &before) override;
    void releaseResources() override;

private:
    /// What is seen, in pixels of the decoded image, and how large one of them is on the screen.
    struct View {
        QRectF pixels;
        QRectF viewportInItem;
        double zoom = 0;
        friend bool operator==(const View &, const View &) = default;
    };
    View currentView() const;
    void followWindow();
    void remakeTiles();
    void changed();

    QVariantMap m_imageData;
    PreviewGeometry m_geometry;
    TileLoader m_loader;
    View m_view;
    QPointer<QQuickItem> m_viewport;
    QMetaObject::Connection m_windowConnection;
    double m_startX = 0;
    double m_endX = 1;
    bool m_showImage = true;
    bool m_srgbFallback = false;
    bool m_complete = false;
    bool m_imageChanged = false;
};
