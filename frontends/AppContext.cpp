#include "frontends/AppContext.h"

#include "frontends/PreferenceTable.h"
#include "system/Identity.h"

#include <QCoreApplication>
#include <QDir>
#include <QSettings>

namespace {

QString makePresetsDirectory(const QString &logDirectory) {
    QDir parent(QDir::cleanPath(QDir(logDirectory).absoluteFilePath(QStringLiteral(".."))));
    const QString name = QStringLiteral("Presets");
    if (!parent.exists(name))
        parent.mkdir(name);
    return parent.absoluteFilePath(name);
}

} // namespace

AppContext::AppContext(const QString &modelDirectory, const QString &logDirectory, QObject *parent)
    : QObject(parent)
    , m_appName(QCoreApplication::applicationName())
    , m_isDev(storedPreference(QSettings(), u"developerMode").toBool())
    , m_modelDirectory(modelDirectory)
    , m_logDirectory(logDirectory)
    , m_presetsDirectory(makePresetsDirectory(logDirectory)) {
}

QString AppContext::appVersion() const {
    return Identity::version();
}

bool AppContext::isMac() const {
#ifdef Q_OS_MACOS
    return true;
#else
    return false;
#endif
}
