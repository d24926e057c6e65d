#include "host/InstanceLock.h"

#include <chrono>

InstanceLock::InstanceLock(const QString &directory, const QString &name)
    : m_file(directory + QLatin1Char('/') + name + QStringLiteral(".lock")) {
    // Never stale by age: a server may run for weeks. A dead process makes it stale.
    m_file.setStaleLockTime(std::chrono::milliseconds(0));
}

bool InstanceLock::tryBecomeServer() {
    return m_file.isLocked() || m_file.tryLock(0);
}
