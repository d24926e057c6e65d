#include "ChildProcess.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryFile>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

bool canRunChildren() {
    return true;
}

ChildUse runChild(const QString &program, const QStringList &arguments) {
    std::vector<QByteArray> encoded = {QFile::encodeName(program)};
    for (const QString &argument : arguments)
        encoded.push_back(QFile::encodeName(argument));
    std::vector<char *> argv;
    for (QByteArray &bytes : encoded)
        argv.push_back(bytes.data());
    argv.push_back(nullptr);

    ChildUse use;
    QTemporaryFile errors;
    if (!errors.open())
        return use;
    QElapsedTimer clock;
    clock.start();
    // Not posix_spawn: where that shares the parent's memory until the program is loaded, the
    // child's peak would begin at the parent's.
    const pid_t child = fork();
    if (child == 0) {
        const int nowhere = open("/dev/null", O_WRONLY);
        dup2(nowhere, 1);
        dup2(errors.handle(), 2);
        execv(argv[0], argv.data());
        _exit(127);
    }
    if (child < 0)
        return use;
    int status = 0;
    rusage resources = {};
    wait4(child, &status, 0, &resources);
    use.seconds = double(clock.nsecsElapsed()) / 1e9;
    use.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
#ifdef Q_OS_MACOS
    use.peakMegabytes = double(resources.ru_maxrss) / 1e6;
#else
    use.peakMegabytes = double(resources.ru_maxrss) * 1024 / 1e6;
#endif
    errors.seek(0);
    use.errors = errors.readAll();
    return use;
}

#else

bool canRunChildren() {
    return false;
}

ChildUse runChild(const QString &, const QStringList &) {
    return {};
}

#endif
