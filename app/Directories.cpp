#include "app/Directories.h"

#include "app/platform/System.h"
#include "system/Identity.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

bool isInstallRoot(const QString &folder) {
    return QFileInfo(folder + "/models"_L1).isDir() && QFileInfo(folder + "/filterData"_L1).isDir();
}

QString filledDirectory(const QString &path, const char *label, const char *emptyMessage) {
    QDir dir(path);
    if (dir.isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot)) {
        qCritical("%s", emptyMessage);
        dir = QDir::current();
    } else {
        qInfo().noquote() << label << dir.absolutePath();
    }
    return dir.absolutePath();
}

// Whether the folder, or else the nearest one above it that exists, takes new entries.
bool canBeWritten(const QString &folder) {
    QFileInfo info(folder);
    while (!info.exists() && !info.isRoot())
        info.setFile(info.absolutePath());
    return info.isDir() && info.isWritable();
}

} // namespace

namespace Directories {

Environment Environment::ofProcess() {
    const QString program = System::executablePath();
    return {.registeredModelDir = System::registeredModelDir(),
            .programFolder = program.isEmpty() ? QString() : QFileInfo(program).absolutePath(),
            .dataLocations = QStandardPaths::standardLocations(QStandardPaths::AppDataLocation)};
}

QString installRoot(const Environment &environment) {
    if (!environment.registeredModelDir.isEmpty())
        return QDir(environment.registeredModelDir).absolutePath();
    if (environment.programFolder.isEmpty())
        return {};
    const QString &program = environment.programFolder;
    for (const QString &folder : {program, program + "/../share/orvane-studio"_L1}) {
        if (isInstallRoot(folder))
            return QDir::cleanPath(QDir(folder).absolutePath());
    }
    return {};
}

QString modelDirectory(const QString &installRoot) {
    return filledDirectory(installRoot + "/models"_L1, "Model Dir:", "Model directory is empty!");
}

QString filterDataDirectory(const QString &installRoot) {
    return filledDirectory(installRoot + "/filterData"_L1,
                           "Filter Data Dir:", "Filter data directory is empty!");
}

QString logDirectory(const Environment &environment) {
    const QString below = u"/Orvane Works/%1/Logs"_s.arg(Identity::productName());
    const QStringList &locations = environment.dataLocations;
    const QString root = installRoot(environment);

    QStringList candidates;
    if (!root.isEmpty())
        candidates << root + "/Logs"_L1;
    else if (locations.size() > 1)
        candidates << locations.at(1) + below;
    candidates << (locations.isEmpty() ? QDir::homePath() : locations.first()) + below;

    for (const QString &candidate : std::as_const(candidates)) {
        if (canBeWritten(candidate))
            return candidate;
    }
    return candidates.first();
}

} // namespace Directories
