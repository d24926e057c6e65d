#pragma once

#include <QObject>
#include <QRectF>
#include <QSize>
#include <QStringList>
#include <QUrl>
#include <QVariant>
#include <QtQmlIntegration/qqmlintegration.h>

/// Questions about image files, paths and rectangles that need no pixels. Static from C++, an
/// object in QML.
class TImageUtils : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(double highConfidenceThreshold READ highConfidenceThreshold CONSTANT)
public:
    using QObject::QObject;

    /// Confidence (0 to 1) above which a found face counts as certain.
    static constexpr double HighConfidence = 0.8;
    static double highConfidenceThreshold() { return HighConfidence; }

    Q_INVOKABLE static QStringList supportedFileFormats();
    Q_INVOKABLE static QStringList rawFileFormats();
    Q_INVOKABLE static bool isRawFile(const QString &path);

    /// Extension of the saved file, without the dot. `format` is "preserve" or the name of a format.
    /// "preserve" keeps the extension, except that RAW becomes "dng", or "tiff" when exposure or
    /// colour of the RAW was changed; "dng" for what is no RAW gives "tiff".
    Q_INVOKABLE static QString getExportExtension(const QString &originalExtension, const QString &format,
                                                  bool rawExposureOrColorUsed = false);
    /// The path itself when nothing is there, else the first free one of "name-1.ext", "name-2.ext" and so
    /// on.
    Q_INVOKABLE static QString adjustPathWhenOverwriting(const QString &path);
    /// True when both lead to the same file, or would, were it there.
    Q_INVOKABLE static bool arePathsEqual(const QString &a, const QString &b);
    /// As written, without the dot; empty when there is none.
    Q_INVOKABLE static QString getExtension(const QString &path);
    /// Name with extension, without the folder.
    Q_INVOKABLE static QString getFilename(const QString &path);
    /// The folder, without a slash at the end.
    Q_INVOKABLE static QString getPath(const QString &path);
    /// Size in pixels as shown, from the header alone; (-1, -1) when it is unknown.
    Q_INVOKABLE static QSize imageSize(const QString &path);

    Q_INVOKABLE static bool doesRectCoverRect(const QRectF &outer, const QRectF &inner);
    /// The upright rectangle around `rect` turned about its centre by an angle in degrees (the crop's
    /// rotation is in radians).
    Q_INVOKABLE static QRectF getBoundingRect(const QRectF &rect, double degrees);
    Q_INVOKABLE static bool isEmpty(const QRectF &rect) { return rect.isEmpty(); }

    Q_INVOKABLE static QUrl stringToUrl(const QString &path);
    /// The local path of a file's address; any other text is given back as it is.
    Q_INVOKABLE static QString urlToString(const QUrl &url);
    /// False for undefined, null, and an image that holds no pixels.
    Q_INVOKABLE static bool isValidVariant(const QVariant &value);
};
