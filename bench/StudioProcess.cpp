#include "StudioProcess.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QThread>

#include <cstdio>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {
constexpr int PatienceMs = 60000;
}

StudioProcess::StudioProcess(const QString &program)
    : m_program(program) {
    QProcessEnvironment surroundings = QProcessEnvironment::systemEnvironment();
    for (const auto &[name, folder] : {std::pair(u"HOME"_s, u"home"_s),
                                       {u"XDG_CONFIG_HOME"_s, u"config"_s},
                                       {u"XDG_DATA_HOME"_s, u"data"_s},
                                       {u"XDG_RUNTIME_DIR"_s, u"run"_s},
                                       {u"TMPDIR"_s, u"tmp"_s}}) {
        QDir(m_home.path()).mkpath(folder);
        surroundings.insert(name, m_home.filePath(folder));
    }
    QFile::setPermissions(m_home.filePath(u"run"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    m_process.setProcessEnvironment(surroundings);
    m_process.setProcessChannelMode(QProcess::MergedChannels);
}

StudioProcess::~StudioProcess() {
    m_process.kill();
    m_process.waitForFinished(PatienceMs);
}

bool StudioProcess::start(const QStringList &arguments, bool watched) {
    QProcessEnvironment surroundings = m_process.processEnvironment();
    surroundings.remove(u"ORVANE_GUI_WATCH"_s);
    if (watched)
        surroundings.insert(u"ORVANE_GUI_WATCH"_s, u"1"_s);
    m_process.setProcessEnvironment(surroundings);
    m_clock.start();
    m_process.start(m_program, arguments);
    return m_process.waitForStarted();
}

bool StudioProcess::read(int milliseconds) {
    if (!m_process.bytesAvailable() && !m_process.waitForReadyRead(milliseconds))
        return m_process.state() == QProcess::Running;
    const double at = now();
    m_text += m_process.readAll();
    for (qsizetype end = m_text.indexOf('\n'); end >= 0; end = m_text.indexOf('\n')) {
        m_lines.push_back({at, m_text.left(end)});
        m_text.remove(0, end + 1);
    }
    return true;
}

double StudioProcess::waitFor(const QByteArray &text) {
    for (const QDeadlineTimer deadline(PatienceMs);;) {
        for (; m_found < m_lines.size(); ++m_found) {
            if (m_lines[m_found].text.contains(text))
                return m_lines[m_found++].at;
        }
        if (deadline.hasExpired() || !read(1000)) {
            std::fprintf(stderr, "The window did not say \"%s\". Its last words:\n", text.constData());
            for (std::size_t i = m_lines.size() < 12 ? 0 : m_lines.size() - 12; i < m_lines.size(); ++i)
                std::fprintf(stderr, "  %s\n", m_lines[i].text.constData());
            return -1;
        }
    }
}

void StudioProcess::watch(int milliseconds) {
    for (const QDeadlineTimer deadline(milliseconds); !deadline.hasExpired();) {
        if (!read(int(qMax<qint64>(1, deadline.remainingTime()))))
            return;
    }
}

std::vector<StudioProcess::Second> StudioProcess::takeSeconds() {
    std::vector<Second> seconds;
    for (; m_reported < m_lines.size(); ++m_reported) {
        const QByteArray &line = m_lines[m_reported].text;
        const qsizetype at = line.indexOf("[WATCH] frames ");
        Second one;
        if (at >= 0 &&
            std::sscanf(line.constData() + at,
                        "[WATCH] frames %d interval %lf wait %lf %lf computing %lf %lf", &one.frames,
                        &one.interval, &one.wait, &one.longest, &one.computing, &one.longestComputing) == 6)
            seconds.push_back(one);
    }
    return seconds;
}

double StudioProcess::processorSeconds() const {
#ifdef Q_OS_LINUX
    QFile file(u"/proc/%1/stat"_s.arg(m_process.processId()));
    if (file.open(QFile::ReadOnly)) {
        // Behind the name in brackets: the 12th and 13th word are the time of the program and of the system
        // for it.
        const QByteArray text = file.readAll();
        const QList<QByteArray> words = text.mid(text.lastIndexOf(')') + 2).split(' ');
        if (words.size() > 12)
            return (words[11].toDouble() + words[12].toDouble()) / double(sysconf(_SC_CLK_TCK));
    }
#endif
    return 0;
}

bool StudioProcess::send(const QStringList &xdotool) {
    return QProcess::execute(u"xdotool"_s, xdotool) == 0;
}

bool StudioProcess::focus() {
    const auto ask = [](const QStringList &arguments) {
        QProcess tool;
        tool.start(u"xdotool"_s, arguments);
        return tool.waitForFinished() && tool.exitCode() == 0 ? QString::fromLatin1(tool.readAll()).trimmed()
                                                              : QString();
    };
    for (const QDeadlineTimer deadline(PatienceMs); !deadline.hasExpired(); QThread::msleep(100)) {
        const QString id = QString::number(m_process.processId());
        const QStringList windows =
            ask({u"search"_s, u"--onlyvisible"_s, u"--pid"_s, id}).split(u'\n', Qt::SkipEmptyParts);
        for (const QString &window : windows) {
            ask({u"windowfocus"_s, window});
            if (ask({u"getwindowfocus"_s, u"-f"_s}) == window)
                return true;
        }
    }
    return false;
}
