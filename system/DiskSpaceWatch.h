#pragma once

#include <QString>

#include <functional>
#include <optional>

/// Tells, once for each level, when a volume that work needs runs short of space.
class DiskSpaceWatch {
public:
    struct Volume {
        QString name;
        qint64 bytesFree = -1; ///< negative: unknown
    };
    using Probe = std::function<Volume(const QString &folder)>;
    struct Warning {
        QString volume;
        bool critical = false;
    };

    static constexpr qint64 LowBytes = 5'000'000'000;
    static constexpr qint64 CriticalBytes = 1'000'000'000;

    /// Asks the operating system unless told whom to ask.
    DiskSpaceWatch();
    explicit DiskSpaceWatch(Probe probe)
        : m_probe(std::move(probe)) {}

    /// A warning when the folder's volume is below a level that was not reported before.
    std::optional<Warning> check(const QString &folder);

private:
    Probe m_probe;
    bool m_lowReported = false;
    bool m_criticalReported = false;
};
