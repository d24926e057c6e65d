#pragma once

#include <QObject>
#include <QSize>
#include <QVariantMap>
#include <QtQmlIntegration/qqmlintegration.h>

/// What QML may ask of the images and metadata that it passes around without looking inside.
class ImageDataUtils : public QObject {
    Q_OBJECT
    QML_ELEMENT
public:
    using QObject::QObject;

    /// An image entry that holds no pixels.
    Q_INVOKABLE static QVariant blankImage();
    /// (0, 0) without an image.
    Q_INVOKABLE static QSize imageSize(const QVariant &image);
    Q_INVOKABLE static bool isEmpty(const QVariant &image);

    /// True when `make` or `model` is missing: other programs then can't choose a camera profile.
    Q_INVOKABLE static bool isCameraInfoMissing(const QVariantMap &metadata);
    /// True when camera, lens (`lens`) and `focalLength` are known.
    Q_INVOKABLE static bool isLensCorrectable(const QVariantMap &metadata);
    /// 0 when unknown.
    Q_INVOKABLE static int iso(const QVariantMap &metadata);
    /// `uniqueCameraModel`, empty when the file names none.
    Q_INVOKABLE static QString uniqueCameraModel(const QVariantMap &metadata);
};
