#include "frontends/TImageUtils.h"

#include "frontends/FileBackends.h"
#include "frontends/ImageDataUtils.h"

#include <QDir>
#include <QFileInfo>
#include <QTransform>

QStringList TImageUtils::supportedFileFormats() {
    return fileFormats().readable;
}

QStringList TImageUtils::rawFileFormats() {
    return fileFormats().raw;
}

bool TImageUtils::isRawFile(const QString &path) {
    return fileFormats().raw.contains(getExtension(path).toLower());
}

QString TImageUtils::getExportExtension(const QString &originalExtension, const QString &format,
                                        bool rawExposureOrColorUsed) {
    const QString tiff = QStringLiteral("tiff");
    const QString dng = QStringLiteral("dng");
    const bool raw = fileFormats().raw.contains(originalExtension.toLower());
    if (format.compare(QStringLiteral("preserve"), Qt::CaseInsensitive) != 0)
        return format.compare(dng, Qt::CaseInsensitive) == 0 && !raw ? tiff : format.toLower();
    if (!raw)
        return originalExtension;
    if (rawExposureOrColorUsed)
        return tiff;
    return originalExtension.compare(dng, Qt::CaseInsensitive) == 0 ? originalExtension : dng;
}

QString TImageUtils::adjustPathWhenOverwriting(const QString &path) {
    // A link that leads nowhere is in the way as well.
    const auto taken = [](const QString &p) { return QFileInfo::exists(p) || QFileInfo(p).isSymLink(); };
    if (path.isEmpty() || !taken(path))
        return path;
    const QFileInfo file(path);
    const QString extension = file.suffix().isEmpty() ? QString() : u'.' + file.suffix();
    const QString stem = path.chopped(extension.size());
    for (int number = 1;; ++number) {
        const QString candidate = stem + u'-' + QString::number(number) + extension;
        if (!taken(candidate))
            return candidate;
    }
}

bool TImageUtils::arePathsEqual(const QString &a, const QString &b) {
    if (a.isEmpty() || b.isEmpty())
        return a == b;
    // The folder is resolved by itself so that files yet to be written compare by where they would lie.
    const auto resolved = [](const QString &path) {
        const QFileInfo file(QDir::cleanPath(path));
        if (file.exists())
            return file.canonicalFilePath();
        const QString folder = QFileInfo(file.absolutePath()).canonicalFilePath();
        return folder.isEmpty() ? file.absoluteFilePath() : folder + u'/' + file.fileName();
    };
#if defined(Q_OS_WIN) || defined(Q_OS_MACOS)
    constexpr Qt::CaseSensitivity sensitivity = Qt::CaseInsensitive;
#else
    constexpr Qt::CaseSensitivity sensitivity = Qt::CaseSensitive;
#endif
    return resolved(a).compare(resolved(b), sensitivity) == 0;
}

QString TImageUtils::getExtension(const QString &path) {
    return QFileInfo(path).suffix();
}

QString TImageUtils::getFilename(const QString &path) {
    return QFileInfo(path).fileName();
}

QString TImageUtils::getPath(const QString &path) {
    return path.isEmpty() ? QString() : QFileInfo(path).path();
}

QSize TImageUtils::imageSize(const QString &path) {
    const std::shared_ptr<ImageFileBackend> backend = imageFileBackend();
    return backend && !path.isEmpty() ? backend->imageSize(path) : QSize();
}

// QRectF::contains refuses empty rectangles, which a view without extent has every right to be.
bool TImageUtils::doesRectCoverRect(const QRectF &outer, const QRectF &inner) {
    return outer.left() <= inner.left() && outer.top() <= inner.top() && outer.right() >= inner.right() &&
           outer.bottom() >= inner.bottom();
}

QRectF TImageUtils::getBoundingRect(const QRectF &rect, double degrees) {
    const QPointF centre = rect.center();
    return QTransform()
        .translate(centre.x(), centre.y())
        .rotate(degrees)
        .translate(-centre.x(), -centre.y())
        .mapRect(rect);
}

QUrl TImageUtils::stringToUrl(const QString &path) {
    return path.isEmpty() ? QUrl() : QUrl::fromLocalFile(path);
}

QString TImageUtils::urlToString(const QUrl &url) {
    return url.isLocalFile() ? url.toLocalFile() : url.toString();
}

bool TImageUtils::isValidVariant(const QVariant &value) {
    if (!value.isValid() || value.isNull())
        return false;
    return !value.canConvert<std::shared_ptr<ImageData>>() || !ImageDataUtils::isEmpty(value);
}
