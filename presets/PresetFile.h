#pragma once

#include <QString>
#include <QVariantMap>

enum class PresetFault { None, CannotOpen, NoObject };

struct PresetFile {
    QVariantMap preset; ///< as the file has it; empty with a fault
    PresetFault fault = PresetFault::None;
};

/// Reads one preset. A file that is far larger than a preset can be counts as no JSON object.
PresetFile readPresetFile(const QString &path);
