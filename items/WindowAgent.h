#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQmlIntegration/qqmlintegration.h>

#include <vector>

/// Gives a window its own title bar: no frame of the system's, moved by the title bar, resized by its
/// edges, maximized and restored by a double click. Stands in, with the same surface for QML, where the
/// frameless-window library is not installed.
class WindowAgent : public QObject {
    Q_OBJECT
    QML_ELEMENT
public:
    enum SystemButton { Unknown, WindowIcon, Help, Minimize, Maximize, Close };
    Q_ENUM(SystemButton)

    using QObject::QObject;

    /// Once, before the window is shown. False for no window, or a second one.
    Q_INVOKABLE bool setup(QQuickWindow *window);
    Q_INVOKABLE QQuickItem *titleBar() const { return m_titleBar; }
    Q_INVOKABLE void setTitleBar(QQuickItem *item);
    /// A system button takes its own clicks; so do items that are made visible to hit tests.
    Q_INVOKABLE void setSystemButton(WindowAgent::SystemButton button, QQuickItem *item);
    Q_INVOKABLE void setHitTestVisible(QQuickItem *item, bool visible = true);
    Q_INVOKABLE bool isHitTestVisible(QQuickItem *item) const;
    Q_INVOKABLE void centralize();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    enum class Drag { None, PressedOnTitle, Moving, Resizing };

    bool pressed(const QPointF &point, const QPointF &global);
    bool moved(const QPointF &point, const QPointF &global, Qt::MouseButtons buttons);
    bool isOnTitleBar(const QPointF &point) const;
    bool isResizable() const;
    void toggleMaximized();
    void showCursor(Qt::Edges edges);

    QPointer<QQuickWindow> m_window;
    QPointer<QQuickItem> m_titleBar;
    std::vector<QPointer<QQuickItem>> m_hitTestVisible;
    Drag m_drag = Drag::None;
    Qt::Edges m_edges;
    bool m_cursorShown = false;
    QPointF m_pressGlobal;
    QRect m_pressGeometry;
};
