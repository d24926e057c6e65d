#include "items/MouseListener.h"

#include <QEvent>

void MouseListener::listenTo(QObject *object) {
    if (object)
        object->installEventFilter(this);
}

bool MouseListener::eventFilter(QObject *, QEvent *event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        m_pressed = true;
        m_released = false;
        break;
    case QEvent::MouseButtonRelease:
        m_pressed = false;
        m_released = true;
        m_exited = false;
        break;
    case QEvent::Leave:
        m_pressed = false;
        m_released = false;
        m_exited = true;
        break;
    case QEvent::Enter:
        m_pressed = false;
        m_released = false;
        m_exited = false;
        break;
    default:
        return false;
    }
    Q_EMIT isMousePressedChanged();
    return false;
}
