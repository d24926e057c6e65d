#include "app/SettingsStore.h"

#include <QDebug>
#include <QFile>
#include <QSettings>

void reportSettingsStore(const QSettings &settings) {
    const QString path = settings.fileName();
    switch (settings.status()) {
    case QSettings::NoError:
        return;
    case QSettings::AccessError:
        qWarning().noquote() << "The settings cannot be read or written; this session has the defaults:"
                             << path;
        return;
    case QSettings::FormatError:
        break;
    }
    const QString kept = path + QStringLiteral(".damaged");
    QFile::remove(kept);
    qWarning().noquote() << "The settings are damaged; what cannot be read has its default:" << path;
    if (QFile::copy(path, kept))
        qInfo().noquote() << "The damaged settings are kept as" << kept;
}
