#pragma once

#include <QLockFile>
#include <QString>

/// Which of a user's instances serves. The lock file names the process that holds it, so that the lock
/// of a crashed server is found stale and taken over at once.
class InstanceLock {
public:
    /// `directory` must belong to the user alone; the runtime directory is meant.
    InstanceLock(const QString &directory, const QString &name);

    /// True when this process holds the lock, now or already.
    bool tryBecomeServer();
    bool isHeld() const { return m_file.isLocked(); }

private:
    QLockFile m_file;
};
