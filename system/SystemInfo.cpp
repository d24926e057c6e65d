#include "system/SystemInfo.h"

#include "system/Identity.h"

#include <QCryptographicHash>
#include <QSysInfo>

namespace aiutils {

SystemInfo &SystemInfo::GetInstance(bool collectNow) {
    static SystemInfo instance;
    if (collectNow)
        instance.getMachineId();
    return instance;
}

QString SystemInfo::getMachineId() {
    if (m_machineId.isEmpty()) {
        QByteArray machine = QSysInfo::machineUniqueId();
        if (machine.isEmpty())
            machine = QSysInfo::machineHostName().toUtf8();
        const QByteArray named = Identity::productName().toUtf8() + '\n' + machine;
        m_machineId =
            QString::fromLatin1(QCryptographicHash::hash(named, QCryptographicHash::Sha256).toHex().left(32));
    }
    return m_machineId;
}

} // namespace aiutils
