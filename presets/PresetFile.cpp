#include "presets/PresetFile.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

// A preset is a few kilobytes; more is not one of ours.
constexpr qint64 MaxPresetBytes = 16 * 1024 * 1024;

} // namespace

PresetFile readPresetFile(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {{}, PresetFault::CannotOpen};
    const QString text = QString::fromUtf8(file.read(MaxPresetBytes));
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    if (document.isNull() || document.isEmpty() || !document.isObject())
        return {{}, PresetFault::NoObject};
    return {document.object().toVariantMap(), PresetFault::None};
}
