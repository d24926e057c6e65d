#pragma once

#include <QString>
#include <QStringList>

/// The folders of this program. Found from what lies around the process, at a time when no
/// application object exists yet.
namespace Directories {

/// What the lookups look at.
struct Environment {
    QString registeredModelDir; ///< install root from the system's registry or settings, or empty
    QString programFolder;      ///< folder of the running program, or empty
    QStringList dataLocations;  ///< application data locations, the user's own first

    /// Those of this process. The data locations depend on the application's identity, so this is
    /// called before the identity is set.
    static Environment ofProcess();
};

/// The folder that holds "models" and "filterData": the registered one; otherwise the program's
/// folder or "../share/orvane-studio" beside it, whichever holds both; otherwise empty.
QString installRoot(const Environment &environment);

/// Absolute path of "models" below the root; the working directory when that holds nothing.
QString modelDirectory(const QString &installRoot);

/// Absolute path of "filterData" below the root; the working directory when that holds nothing.
QString filterDataDirectory(const QString &installRoot);

/// "Logs" below the install root, or, without a root, in the machine's application data. Where that
/// can't be written, in the user's own application data. The folder itself need not exist yet.
QString logDirectory(const Environment &environment);

} // namespace Directories
