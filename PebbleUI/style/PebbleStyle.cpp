#include "PebbleStyle.h"

using namespace Qt::StringLiterals;

namespace {

/// As documents write a colour: with its alpha in front where it has one.
QString nameOf(const QColor &color) {
    return color.name(color.alpha() < 255 ? QColor::HexArgb : QColor::HexRgb);
}

} // namespace

PebbleStyle::PebbleStyle(QObject *parent)
    : QObject(parent)
    , m_color(new PbColors(this))
    , m_font(new PbFonts(this))
    , m_icon(new PbIcons(this))
    , m_brand(new PbBrand(this))
    , m_size(new PbMetrics(this))
    , m_time(new PbTimes(this)) {
}

void PebbleStyle::setDarkMode(bool darkMode) {
    if (m_darkMode == darkMode)
        return;
    m_darkMode = darkMode;
    m_color->setDarkMode(darkMode);
    m_size->setDarkMode(darkMode);
    Q_EMIT darkModeChanged();
}

void PebbleStyle::setTooltipPlane(QQuickItem *plane) {
    if (m_tooltipPlane == plane)
        return;
    if (m_tooltipPlane)
        m_tooltipPlane->disconnect(this);
    m_tooltipPlane = plane;
    if (plane)
        connect(plane, &QObject::destroyed, this, &PebbleStyle::tooltipPlaneChanged);
    Q_EMIT tooltipPlaneChanged();
}

qreal PebbleStyle::points(qreal size) {
#ifdef Q_OS_MACOS
    return size;
#else
    return size * 0.7;
#endif
}

QString PebbleStyle::richTextColor(const QString &text, const QColor &color) const {
    return u"<font color=\"%1\">%2</font>"_s.arg(nameOf(color), text);
}

QString PebbleStyle::bold(const QString &text) const {
    return bold(text, m_color->almostWhite());
}

QString PebbleStyle::bold(const QString &text, const QColor &color) const {
    return u"<b>%1</b>"_s.arg(richTextColor(text, color));
}

QColor PebbleStyle::colorWithOpacity(const QColor &color, qreal opacity) const {
    return QColor::fromRgbF(color.redF(), color.greenF(), color.blueF(), float(opacity));
}

QString PebbleStyle::hyperlink(const QString &text, const QString &url, const QColor &color,
                               bool underline) const {
    return u"<a href=\"%1\" style=\"color: %2; text-decoration: %3;\">%4</a>"_s.arg(
        url, nameOf(color), underline ? u"underline"_s : u"none"_s, text);
}

QString PebbleStyle::labelWithBackground(const QString &text, const QString &backgroundColor,
                                         const QString &textColor, const QString &padding,
                                         const QString &borderRadius, const QString &fontSize) const {
    return u"<span style=\"background-color: %1; color: %2; padding: %3; border-radius: %4; font-size: %5;\">%6</span>"_s
        .arg(backgroundColor, textColor, padding, borderRadius, fontSize, text);
}
