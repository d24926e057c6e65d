#include "system/OSUtils.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QStyleHints>
#include <QWindow>

#include <algorithm>

namespace {

/// How much of a window must lie on a screen to be taken hold of.
constexpr int Reachable = 64;

QWindow *mainWindow() {
    const QWindowList windows = QGuiApplication::topLevelWindows();
    const auto isMain = [](const QWindow *window) {
        return window->type() == Qt::Window && !window->transientParent();
    };
    const auto found = std::ranges::find_if(windows, isMain);
    return found == windows.end() ? nullptr : *found;
}

bool isReachable(const QRect &frame) {
    const QList<QScreen *> screens = QGuiApplication::screens();
    return std::ranges::any_of(screens, [&frame](const QScreen *screen) {
        const QRect seen = screen->availableGeometry() & frame;
        return seen.width() >= Reachable && seen.height() >= Reachable;
    });
}

} // namespace

QRect OSUtils::geometry() {
    const QWindow *window = mainWindow();
    return window ? window->geometry() : QRect();
}

void OSUtils::setGeometry(const QRect &content) {
    QWindow *window = mainWindow();
    if (!window)
        return;
    QRect frame = content.translated(0, -TitleBarHeight);
    if (content.isEmpty())
        frame.setSize(window->size());
    frame.setSize(frame.size().expandedTo(window->minimumSize()));
    if (content.isEmpty() || !isReachable(frame)) {
        const QRect screen =
            QGuiApplication::primaryScreen() ? QGuiApplication::primaryScreen()->availableGeometry() : frame;
        frame.moveCenter(screen.center());
        frame.moveTopLeft({std::max(frame.x(), screen.x()), std::max(frame.y(), screen.y())});
    }
    window->setGeometry(frame);
}

Qt::KeyboardModifiers OSUtils::keyboardModifiers() {
    return QGuiApplication::queryKeyboardModifiers();
}

QPoint OSUtils::mousePosition() {
    return QCursor::pos();
}

void OSUtils::setCursor(Qt::CursorShape shape) {
    if (QGuiApplication::overrideCursor())
        QGuiApplication::changeOverrideCursor(shape);
    else
        QGuiApplication::setOverrideCursor(shape);
}

void OSUtils::clearCursor() {
    while (QGuiApplication::overrideCursor())
        QGuiApplication::restoreOverrideCursor();
}

bool OSUtils::darkMode() {
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return true;
    return QGuiApplication::styleHints()->colorScheme() != Qt::ColorScheme::Light;
}

void OSUtils::alert() {
    if (QWindow *window = mainWindow())
        window->alert(0);
}
