#include "items/PropertyLinker.h"

#include <algorithm>

QQmlListProperty<PropertyTracker> PropertyLinker::trackers() {
    return {this,
            nullptr,
            [](QQmlListProperty<PropertyTracker> *list, PropertyTracker *tracker) {
                static_cast<PropertyLinker *>(list->object)->add(tracker);
            },
            [](QQmlListProperty<PropertyTracker> *list) {
                return static_cast<PropertyLinker *>(list->object)->m_trackers.size();
            },
            [](QQmlListProperty<PropertyTracker> *list, qsizetype index) {
                return static_cast<PropertyLinker *>(list->object)->m_trackers.value(index);
            },
            nullptr};
}

void PropertyLinker::add(PropertyTracker *tracker) {
    if (!tracker || m_trackers.contains(tracker))
        return;
    m_trackers.append(tracker);
    connect(tracker, &PropertyTracker::valueChanged, this, [this, tracker] { follow(tracker); });
    connect(tracker, &PropertyTracker::activateOnChanged, this, [this, tracker] {
        if (tracker->activateOn())
            setActive(tracker->name());
    });
    connect(tracker, &QObject::destroyed, this, [this, tracker] { m_trackers.removeAll(tracker); });
}

void PropertyLinker::setActive(const QString &name) {
    const auto named = [&name](const PropertyTracker *tracker) { return tracker->name() == name; };
    if (name == m_active || std::ranges::none_of(m_trackers, named))
        return;
    m_active = name;
    Q_EMIT activeChanged();
}

void PropertyLinker::follow(const PropertyTracker *changed) {
    const bool leads = m_active.isEmpty() ? m_trackers.value(0) == changed : changed->name() == m_active;
    if (!leads)
        return;
    for (PropertyTracker *tracker : std::as_const(m_trackers)) {
        if (tracker != changed)
            Q_EMIT tracker->update(changed->value());
    }
}
