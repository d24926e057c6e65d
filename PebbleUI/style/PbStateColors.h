#pragma once

#include <QColor>
#include <QObject>
#include <QQmlEngine>

// One colour of a control in each of its states. What is not set is as `normal`.
class PbStateColors : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor normal READ normal WRITE setNormal NOTIFY changed REQUIRED FINAL)
    Q_PROPERTY(QColor hovered READ hovered WRITE setHovered NOTIFY changed FINAL)
    Q_PROPERTY(QColor selected READ selected WRITE setSelected NOTIFY changed FINAL)
    Q_PROPERTY(QColor disabled READ disabled WRITE setDisabled NOTIFY changed FINAL)

public:
    using QObject::QObject;

    QColor normal() const { return m_normal; }
    void setNormal(const QColor &color) { set(m_normal, color); }
    QColor hovered() const { return m_hovered.isValid() ? m_hovered : m_normal; }
    void setHovered(const QColor &color) { set(m_hovered, color); }
    QColor selected() const { return m_selected.isValid() ? m_selected : m_normal; }
    void setSelected(const QColor &color) { set(m_selected, color); }
    QColor disabled() const { return m_disabled.isValid() ? m_disabled : m_normal; }
    void setDisabled(const QColor &color) { set(m_disabled, color); }

Q_SIGNALS:
    void changed();

private:
    void set(QColor &own, const QColor &color) {
        if (own == color)
            return;
        own = color;
        Q_EMIT changed();
    }

    QColor m_normal, m_hovered, m_selected, m_disabled;
};

// The colours of one type of button. The icon's are the label's unless they are set.
class PbButtonStyle : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(PbStateColors *background MEMBER m_background NOTIFY changed REQUIRED FINAL)
    Q_PROPERTY(PbStateColors *label MEMBER m_label NOTIFY changed REQUIRED FINAL)
    Q_PROPERTY(PbStateColors *icon READ icon WRITE setIcon NOTIFY changed FINAL)

public:
    using QObject::QObject;

    PbStateColors *icon() const { return m_icon ? m_icon : m_label; }
    void setIcon(PbStateColors *colors) {
        if (m_icon == colors)
            return;
        m_icon = colors;
        Q_EMIT changed();
    }

Q_SIGNALS:
    void changed();

private:
    PbStateColors *m_background = nullptr, *m_label = nullptr, *m_icon = nullptr;
};
