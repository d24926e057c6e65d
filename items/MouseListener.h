#pragma once

#include <QObject>
#include <QtQmlIntegration/qqmlintegration.h>

/// Knows whether a mouse button is down anywhere in the object it listens to (a window). Leaving
/// the window ends a press. Never consumes an event.
class MouseListener : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool isMousePressed READ isMousePressed NOTIFY isMousePressedChanged)
    Q_PROPERTY(bool isMouseReleased READ isMouseReleased NOTIFY isMousePressedChanged)
public:
    using QObject::QObject;

    Q_INVOKABLE
    void listenTo(QObject *object);
    Q_INVOKABLE
    bool isMousePressed() const { return m_pressed; }
    Q_INVOKABLE
    bool isMouseReleased() const { return m_released; }
    Q_INVOKABLE
    bool isMouseExited() const { return m_exited; }

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// After every press, release, entering and leaving, whether or not the value changed.
    void isMousePressedChanged();

private:
    bool m_pressed = false;
    bool m_released = false;
    bool m_exited = false;
};
