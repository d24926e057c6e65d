#pragma once

#include <QString>

namespace aiutils {

/// What the program says about the machine it runs on.
class SystemInfo {
public:
    /// The one instance. `collectNow` reads everything at once, rather than at the first question.
    static SystemInfo &GetInstance(bool collectNow = false);

    /// The same for every run on this machine, of no use to recognise the machine elsewhere: a hash
    /// of its identifier with the product's name, 32 hexadecimal digits.
    QString getMachineId();

private:
    SystemInfo() = default;

    QString m_machineId;
};

} // namespace aiutils
