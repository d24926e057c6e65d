#include "cli/Options.h"

#include "cli/Console.h"
#include "cli/OptionValues.h"

#include <QDebug>

#include <variant>

using namespace Qt::StringLiterals;

namespace {

using Flag = void (*)(BatchOptions &);
using ValueReader = bool (*)(const QString &, BatchOptions &);

const QMap<QString, std::variant<Flag, ValueReader>> &optionTable() {
    static const QMap<QString, std::variant<Flag, ValueReader>> table = [] {
        QMap<QString, std::variant<Flag, ValueReader>> t;
        const auto flag = [&t](const QStringList &names, Flag set) {
            for (const QString &name : names)
                t.insert(name, set);
        };
        const auto value = [&t](const QStringList &names, ValueReader read) {
            for (const QString &name : names)
                t.insert(name, read);
        };
        // The entry has dealt with these before the batch run starts.
        flag({u"cli"_s, u"log"_s, u"verbose"_s, u"v"_s}, [](BatchOptions &) {});
        flag({u"overwrite"_s}, [](BatchOptions &o) { o.overwrite = true; });
        flag({u"recursive"_s, u"r"_s}, [](BatchOptions &o) { o.recursive = true; });
        flag({u"showsettings"_s}, [](BatchOptions &o) { o.showSettings = true; });
        flag({u"skipprocessing"_s}, [](BatchOptions &o) { o.skipProcessing = true; });
        flag({u"keep-going"_s}, [](BatchOptions &o) { o.keepGoing = true; });
        flag({u"override"_s}, [](BatchOptions &o) { o.overrideAutopilot = true; });
        flag({u"preserve"_s}, [](BatchOptions &o) { o.outputFormat = OutputFormat::Preserve; });
        flag({u"jpeg"_s, u"jpg"_s}, [](BatchOptions &o) { o.outputFormat = OutputFormat::Jpeg; });
        flag({u"png"_s}, [](BatchOptions &o) { o.outputFormat = OutputFormat::Png; });
        flag({u"tif"_s, u"tiff"_s}, [](BatchOptions &o) { o.outputFormat = OutputFormat::Tiff; });
        flag({u"dng"_s}, [](BatchOptions &o) { o.outputFormat = OutputFormat::Dng; });
        value({u"output"_s, u"o"_s}, optionValues::outputFolder);
        value({u"format"_s, u"f"_s}, optionValues::format);
        value({u"quality"_s, u"q"_s}, optionValues::jpegQuality);
        value({u"compression"_s, u"c"_s}, optionValues::pngCompression);
        value({u"bit-depth"_s, u"d"_s}, optionValues::bitDepth);
        value({u"tiff-compression"_s, u"tc"_s}, optionValues::tiffCompression);
        value({u"preset"_s}, optionValues::presetName);
        return t;
    }();
    return table;
}

QString optionName(const QString &arg) {
    if (arg.startsWith("--"_L1))
        return arg.mid(2).toLower();
    if (arg.startsWith(u'-'))
        return arg.mid(1).toLower();
    return arg.toLower();
}

// Settings are taken in as long as they look like one. The implied "enabled=true" goes in last:
// the overrides are read latest first, so that the user's own texts come after it and win.
void readSettings(const QString &category, QStringList &rest, BatchOptions &options) {
    while (!rest.isEmpty() && rest.constFirst().count(u'=') == 1)
        options.overrides.insert(category, rest.takeFirst());
    options.overrides.insert(category, u"enabled=true"_s);
}

} // namespace

bool parseOption(const QString &arg, QStringList &rest, const QMap<QString, QString> &categories,
                 BatchOptions &options) {
    if (!arg.startsWith(u'-'))
        console::errLine(u"Parsing arg that doesn't start with -: "_s + arg);

    const QString name = optionName(arg);
    const auto known = optionTable().constFind(name);
    if (known != optionTable().cend()) {
        if (const Flag *set = std::get_if<Flag>(&known.value())) {
            (*set)(options);
            return true;
        }
        if (rest.isEmpty()) {
            console::errLine(u"Missing value after argument: "_s + arg);
            return false;
        }
        return std::get<ValueReader>(known.value())(rest.takeFirst(), options);
    }

    for (auto stem = categories.cbegin(); stem != categories.cend(); ++stem) {
        if (name.contains(stem.key(), Qt::CaseInsensitive)) {
            qDebug() << "Setting params for category" << stem.value();
            readSettings(stem.value(), rest, options);
            return true;
        }
    }
    console::errLine(u"Unknown argument: "_s + arg);
    return false;
}

bool hasKeepGoing(const QStringList &args) {
    for (qsizetype i = 0; i < args.size(); ++i) {
        if (!args.at(i).startsWith(u'-'))
            continue;
        const QString name = optionName(args.at(i));
        if (name == "keep-going"_L1)
            return true;
        const auto known = optionTable().constFind(name);
        if (known != optionTable().cend() && std::holds_alternative<ValueReader>(known.value()))
            ++i;
    }
    return false;
}
