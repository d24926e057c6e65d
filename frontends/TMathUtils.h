#pragma once

#include <QObject>
#include <QSizeF>
#include <QtQmlIntegration/qqmlintegration.h>

/// Arithmetic that QML and C++ must agree on.
class TMathUtils : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Cannot create TMathUtils from QML")
public:
    using QObject::QObject;

    /// Radius in pixels of a round brush. `brushSize` runs from 0.5 to 100: up to 50 the radius grows
    /// linearly from half a pixel to a 32nd of the image's longest edge, above it to four times that. 0
    /// without an image.
    Q_INVOKABLE static double mapBrushSize(double brushSize, const QSizeF &imageSize);
};
