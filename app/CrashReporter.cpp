#include "app/CrashReporter.h"

#include <QDebug>
#include <QFileInfo>

bool isCrashReporterBypassed(const QByteArray &variable, const std::function<bool()> &trackingAllowed) {
    return !variable.isEmpty() || !trackingAllowed();
}

void startCrashReporter(const QString &, const QString &executablePath) {
    const QString handler =
        QFileInfo(executablePath).absolutePath() + QStringLiteral("/Crashpad/crashpad_handler.exe");
    if (!QFileInfo::exists(handler)) {
        qCritical() << "Crashpad handler executable does not exist, cannot start crashpad.";
        qCritical() << "Crashpad handler expected to be found at:" << handler;
        return;
    }
    qWarning() << "This build has no crash report client; crashes are not reported.";
}
