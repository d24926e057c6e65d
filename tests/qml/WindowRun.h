#pragma once

#include <QByteArrayList>
#include <QImage>
#include <QPoint>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

/// Wanted are 16 ms; whether a machine under load gives them is for the benchmark to say.
inline constexpr double BlockedMs = 3000;

/// The window's program with a home, settings, logs and an installation of its own. Driven by keys and the
/// pointer, as a user does.
class WindowRun : public testing::Test {
protected:
    WindowRun();
    ~WindowRun() override;

    /// A noisy photograph-like picture.
    QString picture(const QString &name, int width, int height) const;
    QString file(const QString &name, const QByteArray &content) const;
    /// A path below the folder of the pictures.
    QString below(const QString &name) const { return m_home.filePath(QStringLiteral("pictures/") + name); }
    void setting(const QString &key, const QVariant &value) const;
    QVariant setting(const QString &key) const;
    QString settingsFile() const;
    QString sessionFile() const;
    /// Where the preset of this name is kept.
    QString presetFile(const QString &name) const;
    /// The files that --recover would open.
    QStringList session() const;

    void start(const QStringList &arguments);
    /// A further start in the same home.
    std::unique_ptr<QProcess> startAnother(const QStringList &arguments) const;
    /// Ends it as a crash does.
    void kill();
    bool isRunning() const { return m_process.state() == QProcess::Running; }
    /// All that it has logged so far.
    QByteArray log() const;
    /// Until the condition holds; false when it does not within a minute, or the program ended.
    bool waitUntil(const std::function<bool()> &condition);
    bool waitForLog(const QByteArray &text);
    /// Until exactly these are the files of the session, in this order.
    bool waitForSession(const QStringList &files);
    /// Sends keys to the window, in the names of X.
    bool keys(const QStringList &names);
    /// Sends the keys in turn, one a second, until the condition holds: a dialog may take its time to appear,
    /// and a window that is not active yet loses a key.
    bool pressUntil(const QStringList &names, const std::function<bool()> &condition);
    /// The same until the program ends: its exit code.
    int pressUntilEnd(const QStringList &names);
    /// Sends keys at once; they arrive in this order, after all that was sent before.
    static bool press(const QStringList &names);
    /// With the left button, in pixels of the screen.
    static bool click(QPoint at);
    static bool drag(QPoint from, QPoint to);
    /// What the screen shows, without the pointer.
    static QImage screen();
    /// What was logged as a warning or worse by a document of the window.
    QByteArrayList complaints() const;
    /// Runs the console's program in the same home: its exit code.
    int console(const QStringList &arguments) const;
    /// How long the thread of the interface has computed at most while an event waited, in milliseconds: the
    /// 99th percentile of the worst second so far. Printed, too.
    double longestBlock() const;
    /// Its exit code, or -1 when it did not end within a minute.
    int waitForEnd();

private:
    QString program(const QString &name = QStringLiteral("orvane-studio")) const;

    QTemporaryDir m_home;
    QProcess m_process;
};
