#include "system/DiskSpaceWatch.h"

#include <QStorageInfo>

DiskSpaceWatch::DiskSpaceWatch()
    : m_probe([](const QString &folder) {
        const QStorageInfo volume(folder);
        return volume.isValid() ? Volume{volume.rootPath(), volume.displayName(), volume.bytesAvailable()}
                                : Volume{};
    }) {
}

std::optional<DiskSpaceWatch::Warning> DiskSpaceWatch::check(const QString &folder) {
    const Volume volume = m_probe(folder);
    if (volume.bytesFree < 0 || volume.bytesFree >= LowBytes)
        return {};
    const bool critical = volume.bytesFree < CriticalBytes;
    QSet<QString> &reported = critical ? m_reportedCritical : m_reportedLow;
    if (reported.contains(volume.root))
        return {};
    reported.insert(volume.root);
    return Warning{volume.name, critical};
}
