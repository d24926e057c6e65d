#pragma once

#include "PbToken.h"

#include <QFont>
#include <QObject>
#include <QQmlEngine>

// How one kind of text is set: size in points before `PebbleStyle.pointSize`, line height in pixels.
class PbTextRole : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("A part of PebbleStyle.font")

    PB_TOKEN(qreal, size, m_size)
    PB_TOKEN(qreal, lineHeight, m_lineHeight)
    // All of it at once: a text that takes this one value is set up once and not five times.
    PB_TOKEN(QFont, font, m_font)

public:
    PbTextRole(qreal size, QFont::Weight weight, qreal lineHeight, QObject *parent);

    void setItalic() { m_font.setItalic(true); }
    void setLetterSpacing(qreal pixels) { m_font.setLetterSpacing(QFont::AbsoluteSpacing, pixels); }

private:
    qreal m_size;
    qreal m_lineHeight;
    QFont m_font;
};

// The kinds of text. The library brings its own Inter, so that a program needs no font of that name
// installed.
class PbFonts : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("A group of PebbleStyle")

    PB_TOKEN(QString, family, inter())
    PB_TOKEN(PbTextRole *, heading, m_heading)
    PB_TOKEN(PbTextRole *, cta, m_cta)
    PB_TOKEN(PbTextRole *, title, m_title)
    PB_TOKEN(PbTextRole *, body, m_body)
    PB_TOKEN(PbTextRole *, footnote, m_footnote)
    PB_TOKEN(PbTextRole *, label, m_label)

public:
    explicit PbFonts(QObject *parent);

    // That of a PbLabel.Type; the body's for any other number.
    Q_INVOKABLE PbTextRole *ofType(int type) const;

    // The family's name, once its weights are loaded.
    static const QString &inter();

private:
    PbTextRole *const m_heading;
    PbTextRole *const m_cta;
    PbTextRole *const m_title;
    PbTextRole *const m_body;
    PbTextRole *const m_footnote;
    PbTextRole *const m_label;
};
