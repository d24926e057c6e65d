#include "frontends/TEventTracker.h"

namespace {

TEventTracker::Sink &sharedSink() {
    static TEventTracker::Sink sink;
    return sink;
}

} // namespace

void TEventTracker::setSink(Sink sink) {
    sharedSink() = std::move(sink);
}

void TEventTracker::setEnabled(bool enabled) {
    if (m_enabled == enabled)
        return;
    m_enabled = enabled;
    Q_EMIT enabledChanged();
}

void TEventTracker::setDev(bool isDev) {
    if (m_isDev == isDev)
        return;
    m_isDev = isDev;
    Q_EMIT isDevChanged();
}

void TEventTracker::setMachineId(const QString &machineId) {
    if (m_machineId == machineId)
        return;
    m_machineId = machineId;
    Q_EMIT machineIdChanged();
}

void TEventTracker::track(const QString &name, const QVariantMap &properties) const {
    if (m_enabled && sharedSink())
        sharedSink()({name, properties, m_machineId, m_isDev});
}
