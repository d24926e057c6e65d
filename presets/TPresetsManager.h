#pragma once

#include <QObject>
#include <QSet>
#include <QStringList>
#include <QVariantMap>
#include <QtQmlIntegration/qqmlintegration.h>

/// Presets as JSON files, one each, in a directory. Neither interprets nor checks what they hold. The
/// names are read when the directory is set; later changes by other programs are not noticed.
class TPresetsManager : public QObject {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QSet<QString> presets READ presets NOTIFY presetsChanged)
    Q_PROPERTY(QString presetsDirectory READ presetsDirectory WRITE setPresetsDirectory NOTIFY
                   presetsDirectoryChanged)
public:
    using QObject::QObject;

    QSet<QString> presets() const { return m_presets; }
    QString presetsDirectory() const { return m_presetsDirectory; }
    void setPresetsDirectory(const QString &directory);

    /// Overwrites a preset of that name. The name enters the list even when the file can't be written.
    Q_INVOKABLE
    void savePreset(const QVariantMap &preset);
    /// Empty, with a line in the log, when the file can't be opened or is no JSON object.
    Q_INVOKABLE
    QVariantMap getPreset(const QString &preset) const;
    Q_INVOKABLE
    void deletePreset(const QString &preset);

Q_SIGNALS:
    void presetsChanged();
    void presetsDirectoryChanged();

private:
    QString pathOf(const QString &name) const;

    QSet<QString> m_presets;
    QString m_presetsDirectory;
    QStringList m_nameFilters = {QStringLiteral("*.json")};
};
