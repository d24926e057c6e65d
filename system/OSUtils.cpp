#include "system/OSUtils.h"

#include "system/SystemInfo.h"
#include "system/TempFolders.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QScreen>
#include <QSysInfo>
#include <QThread>
#include <QUuid>

void OSUtils::clearThumbnailTempFiles() {
    QDir(TempFolders::thumbnails()).removeRecursively();
}

void OSUtils::clearTempFiles() {
    QDir(TempFolders::root()).removeRecursively();
}

QString OSUtils::machineId() {
    return aiutils::SystemInfo::GetInstance().getMachineId();
}

QString OSUtils::username() {
    const QString name = qEnvironmentVariable("USER");
    return name.isEmpty() ? qEnvironmentVariable("USERNAME", QDir::home().dirName()) : name;
}

QString OSUtils::generateUuid() {
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

QString OSUtils::operatingSystemVersion() {
    return QSysInfo::prettyProductName();
}

QString OSUtils::cpuName() {
    QFile file(QStringLiteral("/proc/cpuinfo"));
    if (file.open(QFile::ReadOnly)) {
        // Files in /proc claim no size, so atEnd() can't be asked.
        for (QByteArray line = file.readLine(); !line.isEmpty(); line = file.readLine()) {
            if (line.startsWith("model name"))
                return QString::fromUtf8(line.mid(line.indexOf(':') + 1)).trimmed();
        }
    }
    return QSysInfo::currentCpuArchitecture();
}

bool OSUtils::isAppleProcessor() {
#ifdef Q_OS_MACOS
    return QSysInfo::currentCpuArchitecture().startsWith(QStringLiteral("arm"));
#else
    return false;
#endif
}

QStringList OSUtils::getAIProcessors() {
    return QStringList({tr("Auto"), cpuName()}) + gpuList();
}

double OSUtils::devicePixelRatio() {
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return 1;
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? screen->devicePixelRatio() : 1;
}

void OSUtils::logSystemInfo() {
    qInfo().noquote() << "System:" << operatingSystemVersion() << QSysInfo::kernelType()
                      << QSysInfo::kernelVersion();
    qInfo().noquote() << "Processor:" << cpuName() << "with" << QThread::idealThreadCount() << "threads";
}

bool OSUtils::fileExists(const QString &path) {
    return QFile::exists(path);
}
