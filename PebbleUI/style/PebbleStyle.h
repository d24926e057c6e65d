#pragma once

#include "PbColors.h"
#include "PbFonts.h"
#include "PbIcons.h"
#include "PbMetrics.h"

#include <QPointer>
#include <QQuickItem>

// Our own marks: a square mark and a wordmark, drawn in one colour so that PbIcon can tint them.
class PbBrand : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("A group of PebbleStyle")
    PB_TOKEN(QUrl, mark, QUrl(QStringLiteral("qrc:/PebbleUI/PebbleUI/brand/mark.svg")))
    PB_TOKEN(QUrl, wordmark, QUrl(QStringLiteral("qrc:/PebbleUI/PebbleUI/brand/wordmark.svg")))

public:
    using QObject::QObject;
};

// Times in milliseconds.
class PbTimes : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("A group of PebbleStyle")
    PB_TOKEN(int, fade, 100)
    PB_TOKEN(int, doublePress, 400)

public:
    using QObject::QObject;
};

// Everything a document needs to look like the rest: colours by role, fonts, sizes, times, icon paths, and
// helpers for rich text. The program sets `darkMode` and `tooltipPlane`; all else is for reading.
class PebbleStyle : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool darkMode READ darkMode WRITE setDarkMode NOTIFY darkModeChanged FINAL)
    // The plane over the main window that tooltips appear in; null until the window has one.
    Q_PROPERTY(
        QQuickItem *tooltipPlane READ tooltipPlane WRITE setTooltipPlane NOTIFY tooltipPlaneChanged FINAL)
    PB_TOKEN(PbColors *, color, m_color)
    PB_TOKEN(PbFonts *, font, m_font)
    PB_TOKEN(PbIcons *, icon, m_icon)
    PB_TOKEN(PbBrand *, brand, m_brand)
    PB_TOKEN(PbMetrics *, size, m_size)
    PB_TOKEN(PbTimes *, time, m_time)

public:
    explicit PebbleStyle(QObject *parent = nullptr);

    bool darkMode() const { return m_darkMode; }
    void setDarkMode(bool darkMode);
    QQuickItem *tooltipPlane() const { return m_tooltipPlane; }
    void setTooltipPlane(QQuickItem *plane);

    // Points are counted at 72 to the inch on macOS and at 96 elsewhere: the same number would look larger.
    static qreal points(qreal size);
    Q_INVOKABLE qreal pointSize(qreal size) const { return points(size); }

    // The helpers below write rich text round `text` as it stands. Text from outside goes through `escaped`
    // first.
    Q_INVOKABLE QString escaped(const QString &text) const { return text.toHtmlEscaped(); }
    Q_INVOKABLE QString richTextColor(const QString &text, const QColor &color) const;
    Q_INVOKABLE QString bold(const QString &text) const;
    Q_INVOKABLE QString bold(const QString &text, const QColor &color) const;
    Q_INVOKABLE QColor colorWithOpacity(const QColor &color, qreal opacity) const;
    Q_INVOKABLE QString hyperlink(const QString &text, const QString &url, const QColor &color,
                                  bool underline = true) const;
    Q_INVOKABLE QString labelWithBackground(const QString &text,
                                            const QString &backgroundColor = QStringLiteral("#FFD700"),
                                            const QString &textColor = QStringLiteral("#000000"),
                                            const QString &padding = QStringLiteral("2px 6px"),
                                            const QString &borderRadius = QStringLiteral("8px"),
                                            const QString &fontSize = QStringLiteral("14px")) const;

Q_SIGNALS:
    void darkModeChanged();
    void tooltipPlaneChanged();

private:
    PbColors *const m_color;
    PbFonts *const m_font;
    PbIcons *const m_icon;
    PbBrand *const m_brand;
    PbMetrics *const m_size;
    PbTimes *const m_time;
    bool m_darkMode = true;
    QPointer<QQuickItem> m_tooltipPlane;
};
