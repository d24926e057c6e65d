#include "Picture.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QImage>
#include <QQuickWindow>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

constexpr int settleMs = 700; // pictures and fades have ended by then
constexpr int fewestColours = 64;

bool isBlank(const QImage &image) {
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); y += 2)
        for (int x = 0; x < image.width(); x += 2) {
            colours.insert(image.pixel(x, y));
            if (colours.size() >= fewestColours)
                return false;
        }
    return true;
}

} // namespace

QString savePicture(QQuickWindow &window, const QString &file) {
    const QDeadlineTimer end(settleMs);
    while (!end.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    const QImage image = window.grabWindow();
    if (image.isNull())
        return u"The window could not be drawn."_s;
    if (isBlank(image))
        return u"The picture is blank."_s;
    // Few colours are lost and the file is a third as large.
    if (!image.convertToFormat(QImage::Format_RGB888).save(file, "PNG", 0))
        return u"The picture could not be written to \"%1\"."_s.arg(file);
    return {};
}
