#include "cli/FileGathering.h"

#include "cli/Console.h"
#include "cli/Options.h"
#include "frontends/TImageUtils.h"

#include <QDebug>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

QStringList filesBelow(const QString &directory, bool recursive) {
    QStringList patterns;
    for (const QString &extension : TImageUtils::supportedFileFormats())
        patterns.append(u"*."_s + extension);
    QDirIterator walk(directory, patterns, QDir::Files,
                      recursive ? QDirIterator::Subdirectories : QDirIterator::NoIteratorFlags);
    QStringList files;
    while (walk.hasNext()) {
        files.append(walk.next());
        qInfo() << "[CLI] Adding file to parse:" << files.constLast();
    }
    files.sort();
    return files;
}

// A batch that reports on each file goes through them in the order in which they were named; the
// plain one has no order of its own, and nothing may rely on one.
QStringList collect(const QStringList &paths, BatchOptions &options) {
    QSet<QString> seen;
    QStringList inOrder;
    const auto add = [&](const QString &file) {
        if (seen.contains(file))
            return;
        seen.insert(file);
        inOrder.append(file);
    };
    for (const QString &path : paths) {
        const QFileInfo info(path);
        if (info.isFile()) {
            add(path);
        } else if (info.isDir()) {
            const QString directory = QDir::cleanPath(path);
            options.inputDirectories.insert(directory);
            for (const QString &file : filesBelow(directory, options.recursive))
                add(file);
        }
    }
    return options.keepGoing ? inOrder : QStringList(seen.cbegin(), seen.cend());
}

} // namespace

QStringList gatherFiles(QStringList args, const QMap<QString, QString> &categories, BatchOptions &options) {
    const bool keepGoing = hasKeepGoing(args);
    QStringList paths;
    while (!args.isEmpty()) {
        const QString arg = args.takeFirst();
        if (arg.startsWith(u'-')) {
            if (!parseOption(arg, args, categories, options)) {
                options.validArguments = false;
                return {};
            }
        } else if (QFileInfo::exists(arg)) {
            paths.append(arg);
        } else {
            console::errLine(u"[CLI] Invalid file or directory path:"_s + arg);
            if (!keepGoing)
                return {};
            options.missingPaths.append(arg);
        }
    }
    return collect(paths, options);
}
