#include "presets/TPresetsManager.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

// A preset is a few kilobytes; more is not one of ours.
constexpr qint64 MaxPresetBytes = 16 * 1024 * 1024;

} // namespace

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
    QFile file(pathOf(name));
    if (file.open(QIODevice::WriteOnly))
        file.write(QJsonDocument(QJsonObject::fromVariantMap(preset)).toJson(QJsonDocument::Compact));
    m_presets.insert(name);
    Q_EMIT presetsChanged();
}

QVariantMap TPresetsManager::getPreset(const QString &preset) const {
    QFile file(pathOf(preset));
    if (!file.open(QIODevice::ReadOnly)) {
        qCritical() << "Could not open preset file" << file.fileName();
        return {};
    }
    const QString text = QString::fromUtf8(file.read(MaxPresetBytes));
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    if (document.isNull() || document.isEmpty() || !document.isObject()) {
        qCritical() << "JSON document is invalid";
        return {};
    }
    QVariantMap map = document.object().toVariantMap();
    map.insert(QStringLiteral("name"), preset);
    return map;
}

void TPresetsManager::deletePreset(const QString &preset) {
    QFile::remove(pathOf(preset));
    if (m_presets.remove(preset))
        Q_EMIT presetsChanged();
}
