#include "tests/driver/WindowDriver.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {

QString answerOf(const QStringList &arguments) {
    QProcess tool;
    tool.start(u"xdotool"_s, arguments);
    const bool done = tool.waitForFinished(10000) && tool.exitCode() == 0;
    return done ? QString::fromLatin1(tool.readAllStandardOutput()).trimmed() : QString();
}

} // namespace

QProcessEnvironment WindowDriver::environmentBelow(const QTemporaryDir &home) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"HOME"_s, home.path());
    for (const auto &[name, folder] : {std::pair(u"XDG_CONFIG_HOME"_s, u"config"_s),
                                       {u"XDG_DATA_HOME"_s, u"data"_s},
                                       {u"XDG_RUNTIME_DIR"_s, u"run"_s},
                                       {u"TMPDIR"_s, u"tmp"_s}}) {
        QDir(home.path()).mkpath(folder);
        environment.insert(name, home.filePath(folder));
    }
    QFile::setPermissions(home.filePath(u"run"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return environment;
}

bool WindowDriver::focus(const QProcess &process) {
    const QString id = QString::number(process.processId());
    for (const QDeadlineTimer deadline(60000); !deadline.hasExpired() && process.state() == QProcess::Running;
         QThread::msleep(100)) {
        const QStringList windows =
            answerOf({u"search"_s, u"--onlyvisible"_s, u"--pid"_s, id}).split(u'\n', Qt::SkipEmptyParts);
        for (const QString &window : windows) {
            send({u"windowfocus"_s, window});
            if (answerOf({u"getwindowfocus"_s, u"-f"_s}) == window)
                return true;
        }
    }
    return false;
}

bool WindowDriver::send(const QStringList &arguments) {
    return QProcess::execute(u"xdotool"_s, arguments) == 0;
}
