#include "PbIconProvider.h"

#include <QFile>
#include <QLoggingCategory>
#include <QPainter>
#include <QSvgRenderer>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

constexpr int maxSide = 4096; // device pixels; an icon asked for larger than this is a mistake

QString localName(const QString &address) {
    const QUrl url(address);
    if (url.scheme() == "qrc"_L1)
        return u':' + url.path();
    return url.isLocalFile() ? url.toLocalFile() : address;
}

} // namespace

PbIconProvider::PbIconProvider()
    : QQuickImageProvider(QQuickImageProvider::Image) {
}

QString PbIconProvider::name() {
    return u"pebbleicon"_s;
}

QImage PbIconProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize) {
    const qsizetype slash = id.indexOf(u'/');
    const QColor color = QColor::fromString(u'#' + id.left(slash));
    const QString file = localName(id.mid(slash + 1));
    QSvgRenderer drawing;
    if (slash < 0 || !color.isValid() || !QFile::exists(file) || !drawing.load(file)) {
        qWarning("PebbleUI: the icon \"%ls\" cannot be shown: no such drawing, or no valid colour",
                 qUtf16Printable(id));
        return {};
    }
    drawing.setAspectRatioMode(Qt::KeepAspectRatio);

    QSize wanted = drawing.defaultSize();
    if (requestedSize.width() > 0 && requestedSize.height() > 0)
        wanted = requestedSize;
    wanted = wanted.boundedTo({maxSide, maxSide});
    QImage image(wanted, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawing.render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
    painter.end();
    if (size)
        *size = wanted;
    return image;
}
