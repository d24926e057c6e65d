#pragma once

#include <QSet>
#include <QString>

#include <functional>
#include <optional>

/// Reports, once for each volume and level, when a volume that work needs runs short of space.
class DiskSpaceWatch {
public:
    struct Volume {
        QString root;          ///< where it is mounted; unique, which names need not be
        QString name;          ///< as the user knows it
        qint64 bytesFree = -1; ///< negative: unknown
    };
    using Probe = std::function<Volume(const QString &folder)>;
    struct Warning {
        QString volume;
        bool critical = false;
    };

    static constexpr qint64 LowBytes = 5'000'000'000;
    static constexpr qint64 CriticalBytes = 1'000'000'000;

    /// Asks the operating system unless given something else to ask.
    DiskSpaceWatch();
    explicit DiskSpaceWatch(Probe probe)
        : m_probe(std::move(probe)) {}

    /// A warning when the folder's volume is below a level that was not reported of it before.
    std::optional<Warning> check(const QString &folder);

private:
    Probe m_probe;
    QSet<QString> m_reportedLow; ///< roots
    QSet<QString> m_reportedCritical;
};
