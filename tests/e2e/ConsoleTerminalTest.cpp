#include "ConsoleRun.h"

#include <QImage>

#include <csignal>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

using Terminal = ConsoleRun;

// A batch that waits for ever behind an unreadable file, as a person at a terminal sees it.
TEST_F(Terminal, ProgressLineGoesAwayBeforeCtrlCEndsIt) {
    const QByteArray first = file(u"a.jpg"_s, "torn").toLocal8Bit();
    const QByteArray second = file(u"写真.jpg"_s, "torn").toLocal8Bit();
    int screen = -1;
    const winsize size = {24, 40, 0, 0};
    const pid_t child = forkpty(&screen, nullptr, nullptr, &size);
    if (child == 0) {
        execl(ORVANE_CLI, "orvane-cli", first.constData(), second.constData(), nullptr);
        _exit(99);
    }
    std::string seen;
    char buffer[4096];
    bool stopped = false;
    for (ssize_t n = 0; (n = read(screen, buffer, sizeof buffer)) > 0;) {
        seen.append(buffer, std::size_t(n));
        if (!stopped && seen.find("\r1/2 ") != std::string::npos)
            stopped = write(screen, "\x03", 1) == 1;
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 130);
    EXPECT_TRUE(stopped) << seen;
    EXPECT_TRUE(seen.ends_with(" \rInterrupted.\r\n")) << seen;
}

// Whatever the moment, afterwards the folder holds whole pictures only.
TEST_F(Terminal, CtrlCLeavesNoPartOfAFile) {
    QStringList arguments = {u"-o"_s,      at(u"out"_s),   u"--keep-going"_s,
                             u"--noise"_s, u"--upscale"_s, u"enabled=false"_s};
    for (int i = 0; i < 4; ++i)
        arguments.append(picture(u"p%1.png"_s.arg(i), 700, 500));
    for (const int delay : {60, 200, 400, 700, 1100}) {
        QProcess process;
        start(process, arguments);
        ASSERT_TRUE(process.waitForReadyRead(60000));
        process.waitForFinished(delay);
        if (process.state() == QProcess::Running) {
            kill(pid_t(process.processId()), SIGINT);
            ASSERT_TRUE(process.waitForFinished(60000));
        }
        EXPECT_TRUE(process.exitCode() == 130 || process.exitCode() == 0) << process.exitCode();
        for (const QString &name : filesIn(u"out"_s))
            EXPECT_EQ(QImage(at(u"out/"_s + name)).size(), QSize(700, 500)) << name.toStdString();
    }
}
