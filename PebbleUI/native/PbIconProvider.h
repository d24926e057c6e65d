#pragma once

#include <QQuickImageProvider>

// Icons in one colour, at the size asked for in device pixels: crisp at every scale, and a still image
// once made. An id is "<AARRGGBB>/<file>", the file as "qrc:/..." or "file:///...". Only the shape
// (alpha) of the file counts. An unreadable file gives no image and a warning that names it.
class PbIconProvider : public QQuickImageProvider {
public:
    PbIconProvider();

    static QString name();

    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};
