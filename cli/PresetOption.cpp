#include "cli/PresetOption.h"

#include "cli/Console.h"
#include "presets/PresetFile.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

bool refuse(const QString &name, const QString &expected) {
    console::errLine(u"Invalid preset given: "_s + name);
    console::errLine(expected);
    return false;
}

QString available(const QString &directory) {
    QStringList names = QDir(directory).entryList({u"*.json"_s}, QDir::Files, QDir::Name);
    for (QString &name : names)
        name.chop(5);
    return names.isEmpty() ? u"the path of a .json file; there are no presets in %1"_s.arg(directory)
                           : u"one of %1, or the path of a .json file"_s.arg(names.join(u", "_s));
}

} // namespace

bool readPreset(const QString &directory, BatchOptions &options) {
    const QString &name = options.presetName;
    if (name.isEmpty())
        return true;
    const bool isPath = name.endsWith(".json"_L1, Qt::CaseInsensitive);
    const QString path = isPath ? name : directory + u'/' + name + u".json"_s;
    const PresetFile file = readPresetFile(path);
    if (file.fault == PresetFault::CannotOpen)
        return refuse(name, u"Expected "_s + available(directory));
    options.preset = {file.preset.value(u"controls"_s).toMap(),
                      file.preset.value(u"filterOrder"_s).toStringList()};
    if (options.preset.controls.isEmpty() || options.preset.filterOrder.isEmpty())
        return refuse(name, u"The file is damaged or holds no enhancement: "_s + path);
    return true;
}
