#include "items/TabletListener.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QTabletEvent>

void TabletListener::listenTo(QObject *object) {
    if (object)
        object->installEventFilter(this);
}

bool TabletListener::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() != QEvent::TabletRelease)
        return false;
    const auto *tablet = static_cast<QTabletEvent *>(event);
    QMouseEvent release(QEvent::MouseButtonRelease, tablet->position(), tablet->globalPosition(),
                        Qt::LeftButton, Qt::LeftButton, Qt::NoModifier,
                        QPointingDevice::primaryPointingDevice());
    QCoreApplication::sendEvent(watched, &release);
    return false;
}
