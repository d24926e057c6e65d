#include "items/WindowAgent.h"

#include "items/FrameGeometry.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QStyleHints>

#include <algorithm>

bool WindowAgent::setup(QQuickWindow *window) {
    if (!window || m_window)
        return false;
    m_window = window;
    window->setFlag(Qt::FramelessWindowHint);
    window->installEventFilter(this);
    return true;
}

void WindowAgent::setTitleBar(QQuickItem *item) {
    m_titleBar = item;
}

void WindowAgent::setSystemButton(SystemButton, QQuickItem *item) {
    setHitTestVisible(item, true);
}

void WindowAgent::setHitTestVisible(QQuickItem *item, bool visible) {
    std::erase_if(m_hitTestVisible, [item](const auto &known) { return !known || known == item; });
    if (visible && item)
        m_hitTestVisible.emplace_back(item);
}

bool WindowAgent::isHitTestVisible(QQuickItem *item) const {
    return std::ranges::any_of(m_hitTestVisible, [item](const auto &known) { return known == item; });
}

void WindowAgent::centralize() {
    if (!m_window || !m_window->screen())
        return;
    QRect frame(QPoint(0, 0), m_window->size());
    frame.moveCenter(m_window->screen()->availableGeometry().center());
    m_window->setPosition(frame.topLeft());
}

bool WindowAgent::isResizable() const {
    return m_window->windowState() == Qt::WindowNoState && m_window->minimumSize() != m_window->maximumSize();
}

bool WindowAgent::isOnTitleBar(const QPointF &point) const {
    const auto holds = [&point](const QQuickItem *item) {
        return item && item->isVisible() && item->contains(item->mapFromScene(point));
    };
    return holds(m_titleBar) && std::ranges::none_of(m_hitTestVisible, holds, &QPointer<QQuickItem>::data);
}

bool WindowAgent::eventFilter(QObject *watched, QEvent *event) {
    if (watched != m_window)
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        return mouse->button() == Qt::LeftButton && pressed(mouse->position(), mouse->globalPosition());
    }
    case QEvent::MouseMove: {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        return moved(mouse->position(), mouse->globalPosition(), mouse->buttons());
    }
    case QEvent::MouseButtonRelease:
        return std::exchange(m_drag, Drag::None) >= Drag::Moving;
    case QEvent::MouseButtonDblClick: {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        if (mouse->button() != Qt::LeftButton || !isOnTitleBar(mouse->position()))
            return false;
        m_drag = Drag::None;
        toggleMaximized();
        return true;
    }
    case QEvent::Leave:
        showCursor({});
        return false;
    default:
        return false;
    }
}

bool WindowAgent::pressed(const QPointF &point, const QPointF &global) {
    m_pressGlobal = global;
    m_pressGeometry = m_window->geometry();
    m_edges = frameGeometry::edgesAt(point, m_window->size(), isResizable());
    if (m_edges) {
        // Where the window system can't do it the agent moves the edges itself.
        m_drag = m_window->startSystemResize(m_edges) ? Drag::None : Drag::Resizing;
        return true;
    }
    m_drag = isOnTitleBar(point) ? Drag::PressedOnTitle : Drag::None;
    return false;
}

bool WindowAgent::moved(const QPointF &point, const QPointF &global, Qt::MouseButtons buttons) {
    const QPoint delta = (global - m_pressGlobal).toPoint();
    if (!(buttons & Qt::LeftButton)) {
        m_drag = Drag::None;
        showCursor(frameGeometry::edgesAt(point, m_window->size(), isResizable()));
        return false;
    }
    if (m_drag == Drag::PressedOnTitle) {
        if (delta.manhattanLength() < QGuiApplication::styleHints()->startDragDistance())
            return false;
        m_drag = m_window->startSystemMove() ? Drag::None : Drag::Moving;
    }
    if (m_drag == Drag::Moving)
        m_window->setPosition(m_pressGeometry.topLeft() + delta);
    else if (m_drag == Drag::Resizing)
        m_window->setGeometry(
            frameGeometry::resized(m_pressGeometry, m_edges, delta, m_window->minimumSize()));
    return m_drag >= Drag::Moving;
}

void WindowAgent::toggleMaximized() {
    if (m_window->windowState() == Qt::WindowMaximized)
        m_window->showNormal();
    else
        m_window->showMaximized();
}

void WindowAgent::showCursor(Qt::Edges edges) {
    if (edges) {
        m_window->setCursor(frameGeometry::cursorFor(edges));
        m_cursorShown = true;
    } else if (std::exchange(m_cursorShown, false)) {
        m_window->unsetCursor();
    }
}
