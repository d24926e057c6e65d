#include "cli/SettingsSummary.h"

#include "cli/AutopilotConfiguration.h"
#include "cli/WriterOptions.h"
#include "frontends/PreferenceTable.h"

#include <QSettings>

using namespace Qt::StringLiterals;

namespace {

QString shown(const QVariant &value) {
    switch (value.typeId()) {
    case QMetaType::QStringList:
        return value.toStringList().join(u',');
    case QMetaType::Double:
        return QString::number(value.toDouble(), 'g', 6);
    case QMetaType::Bool:
        return value.toBool() ? u"1"_s : u"0"_s;
    default:
        return value.toString();
    }
}

class Lines {
public:
    void heading(const QString &text) { m_text += text + u'\n'; }
    void item(const QString &label, const QVariant &value) {
        m_text += u"  "_s + label + u": "_s + shown(value) + u'\n';
    }
    QString text() const { return m_text; }

private:
    QString m_text;
};

void addApplicationSettings(Lines &lines, const BatchOptions &options, qsizetype fileCount) {
    const OutputFormat format = options.outputFormat;
    const bool any = format == OutputFormat::Preserve;
    lines.heading(u"Application settings: "_s);
    lines.item(u"Overwrite Files"_s, options.overwrite);
    lines.item(u"Recurse Directories"_s, options.recursive);
    lines.item(u"Input File Count"_s, fileCount);
    lines.item(u"Output Folder"_s,
               options.outputFolder.isEmpty() ? u"Source folder"_s : options.outputFolder);
    lines.item(u"Output Format"_s, formatName(format));
    if (any || format == OutputFormat::Jpeg)
        lines.item(u"Jpeg quality"_s, options.jpegQuality);
    if (any || format == OutputFormat::Png)
        lines.item(u"Png compression level"_s, options.pngCompression);
    if (any || format == OutputFormat::Tiff) {
        lines.item(u"Tiff compression"_s, tiffCompressionName(options.tiffCompression));
        lines.item(u"Tiff bit depth"_s, options.tiffBitDepth);
    }
}

void addAutopilotSettings(Lines &lines, const QSettings &settings) {
    lines.heading(u"Autopilot settings:"_s);
    lines.item(u"Auto apply filters"_s, u"true (Forced)"_s);
    for (const auto &[preference, label] : autopilotSettings())
        lines.item(label, readSetting(settings, preference, preference.consoleShown));
    lines.item(u"Default Subject Type"_s, defaultSubjectType(settings));
}

} // namespace

QString settingsSummary(const QSettings &settings, const BatchOptions &options, qsizetype fileCount) {
    Lines lines;
    lines.heading(u"Change the following settings within the preferences panel in the app"_s);
    addApplicationSettings(lines, options, fileCount);
    addAutopilotSettings(lines, settings);
    return lines.text();
}
