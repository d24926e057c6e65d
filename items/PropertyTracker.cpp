#include "items/PropertyTracker.h"

void PropertyTracker::setName(const QString &name) {
    if (name == m_name)
        return;
    m_name = name;
    Q_EMIT nameChanged();
}

void PropertyTracker::setTarget(QObject *target) {
    if (target == m_target)
        return;
    m_target = target;
    Q_EMIT targetChanged();
}

void PropertyTracker::setValue(const QVariant &value) {
    if (value == m_value)
        return;
    m_value = value;
    Q_EMIT valueChanged();
}

void PropertyTracker::setActivateOn(bool on) {
    if (on == m_activateOn)
        return;
    m_activateOn = on;
    Q_EMIT activateOnChanged();
}
