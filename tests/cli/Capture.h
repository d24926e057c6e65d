#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <iostream>
#include <sstream>

/// Catches what the code under test writes to the standard streams and to the log.
class Capture {
public:
    Capture()
        : m_oldOut(std::cout.rdbuf(m_out.rdbuf()))
        , m_oldErr(std::cerr.rdbuf(m_err.rdbuf())) {
        s_lines.clear();
        m_oldHandler = qInstallMessageHandler(note);
    }
    ~Capture() {
        qInstallMessageHandler(m_oldHandler);
        std::cout.rdbuf(m_oldOut);
        std::cerr.rdbuf(m_oldErr);
    }
    Capture(const Capture &) = delete;
    Capture &operator=(const Capture &) = delete;

    std::string out() const { return m_out.str(); }
    std::string err() const { return m_err.str(); }
    /// Level ("debug", "info", "warning", "error") and text of each message.
    static QStringList log() { return s_lines; }
    static bool logged(const char *line) { return s_lines.contains(QString::fromUtf8(line)); }

private:
    static void note(QtMsgType type, const QMessageLogContext &, const QString &text) {
        static const char *const names[] = {"debug", "warning", "error", "fatal", "info"};
        s_lines.append(QString::fromLatin1(names[type]) + QLatin1Char(' ') + text);
    }

    static inline QStringList s_lines;
    std::ostringstream m_out, m_err;
    std::streambuf *m_oldOut, *m_oldErr;
    QtMessageHandler m_oldHandler = nullptr;
};
