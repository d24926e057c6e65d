#pragma once

#include "items/PropertyTracker.h"

#include <QQmlListProperty>
#include <QtQmlIntegration/qqmlintegration.h>

/// Keeps trackers at one value: changes of the leader reach the others, those of a follower reach none.
/// The first tracker leads until another is chosen.
class PropertyLinker : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QQmlListProperty<PropertyTracker> trackers READ trackers)
    Q_PROPERTY(QString active READ active NOTIFY activeChanged)
    Q_CLASSINFO("DefaultProperty", "trackers")
public:
    using QObject::QObject;

    QQmlListProperty<PropertyTracker> trackers();
    QString active() const { return m_active; }

    void add(PropertyTracker *tracker);
    /// A name without a tracker is ignored.
    Q_INVOKABLE void setActive(const QString &name);

Q_SIGNALS:
    void activeChanged();

private:
    void follow(const PropertyTracker *changed);

    QList<PropertyTracker *> m_trackers;
    QString m_active;
};
