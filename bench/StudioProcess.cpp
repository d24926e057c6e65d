#include "StudioProcess.h"

#include "tests/driver/WindowDriver.h"

#include <QDeadlineTimer>
#include <QFile>

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
    m_process.setProcessEnvironment(WindowDriver::environmentBelow(m_home));
    m_process.setProcessChannelMode(QProcess::MergedChannels);
}

StudioProcess::~StudioProcess() {
    m_process.kill();
    m_process.waitForFinished(PatienceMs);
}

bool StudioProcess::start(const QStringList &arguments, bool watched) {
    QProcessEnvironment environment = m_process.processEnvironment();
    environment.remove(u"ORVANE_GUI_WATCH"_s);
    if (watched)
        environment.insert(u"ORVANE_GUI_WATCH"_s, u"1"_s);
    m_process.setProcessEnvironment(environment);
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
        // Behind the name in brackets: the 12th and 13th field are the time of the program and of the system
        // for it.
        const QByteArray text = file.readAll();
        const QList<QByteArray> fields = text.mid(text.lastIndexOf(')') + 2).split(' ');
        if (fields.size() > 12)
            return (fields[11].toDouble() + fields[12].toDouble()) / double(sysconf(_SC_CLK_TCK));
    }
#endif
    return 0;
}

bool StudioProcess::focus() const {
    return WindowDriver::focus(m_process);
}
