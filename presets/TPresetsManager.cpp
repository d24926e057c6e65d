#include "presets/TPresetsManager.h"

#include "presets/PresetFile.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

QString TPresetsManager::pathOf(const QString &name) const {
    return m_presetsDirectory + QDir::separator() + name + QStringLiteral(".json");
}

void TPresetsManager::setPresetsDirectory(const QString &directory) {
    if (directory == m_presetsDirectory)
        return;
    m_presetsDirectory = directory;
    Q_EMIT presetsDirectoryChanged();
    const QFileInfoList files =
        QDir(directory).entryInfoList(m_nameFilters, QDir::Files | QDir::Readable, QDir::Unsorted);
    m_presets.clear();
    m_presets.reserve(files.size());
    for (const QFileInfo &file : files)
        m_presets.insert(file.baseName());
    Q_EMIT presetsChanged();
}

void TPresetsManager::savePreset(const QVariantMap &preset) {
    const QString name = preset.value(QStringLiteral("name")).toString();
    QSaveFile file(pathOf(name)); // a full disk leaves the preset that was there
    if (file.open(QIODevice::WriteOnly)) {
        file.write(QJsonDocument(QJsonObject::fromVariantMap(preset)).toJson(QJsonDocument::Compact));
        file.commit();
    }
    m_presets.insert(name);
    Q_EMIT presetsChanged();
}

QVariantMap TPresetsManager::getPreset(const QString &preset) const {
    PresetFile file = readPresetFile(pathOf(preset));
    switch (file.fault) {
    case PresetFault::CannotOpen:
        qCritical() << "Could not open preset file" << pathOf(preset);
        return {};
    case PresetFault::NoObject:
        qCritical() << "JSON document is invalid";
        return {};
    case PresetFault::None:
        break;
    }
    file.preset.insert(QStringLiteral("name"), preset);
    return file.preset;
}

void TPresetsManager::deletePreset(const QString &preset) {
    QFile::remove(pathOf(preset));
    if (m_presets.remove(preset))
        Q_EMIT presetsChanged();
}
