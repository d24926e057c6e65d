#include "app/SettingsStore.h"

#include <QDebug>
#include <QFile>
#include <QSettings>

namespace {

/// The store writes every such byte in another form; reading takes it for text all the same.
bool holdsZeroBytes(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.readAll().contains('\0');
}

} // namespace

void reportSettingsStore(const QSettings &settings) {
    const QString path = settings.fileName();
    switch (settings.status()) {
    case QSettings::NoError:
        if (!holdsZeroBytes(path))
            return;
        break;
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
