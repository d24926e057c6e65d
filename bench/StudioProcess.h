#pragma once

#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <vector>

/// The window's program under measurement, with a home directory of its own, and what its watch reports.
class StudioProcess {
public:
    explicit StudioProcess(const QString &program);
    ~StudioProcess();

    /// `watched` makes the program report on itself, which costs a little time.
    bool start(const QStringList &arguments, bool watched);
    /// Milliseconds from the start to the arrival of a line that holds this text, looked for behind what
    /// earlier calls found; -1 when it does not come within a minute.
    double waitFor(const QByteArray &text);
    /// Goes on reading for this long.
    void watch(int milliseconds);
    double now() const { return double(m_clock.nsecsElapsed()) / 1e6; }

    /// What the watch reported for one second.
    struct Second {
        int frames = 0;
        double interval = 0;  ///< median between two frames, milliseconds
        double wait = 0;      ///< 99th percentile of what an event waited
        double longest = 0;   ///< longest wait
        double computing = 0; ///< 99th percentile of what the thread computed meanwhile
        double longestComputing = 0;
    };
    /// Those reported since the last call.
    std::vector<Second> takeSeconds();

    /// For a further start in the same home.
    QProcessEnvironment environment() const { return m_process.processEnvironment(); }
    /// Processor seconds used so far.
    double processorSeconds() const;
    bool focus() const;

private:
    bool read(int milliseconds);

    QString m_program;
    QTemporaryDir m_home;
    QProcess m_process;
    QElapsedTimer m_clock;
    QByteArray m_text; ///< not yet a whole line
    struct Line {
        double at;
        QByteArray text;
    };
    std::vector<Line> m_lines;
    std::size_t m_found = 0;
    std::size_t m_reported = 0;
};
