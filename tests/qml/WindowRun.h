#pragma once

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// The window's program with a home, settings and logs of its own. Driven by keys, as a user does.
class WindowRun : public testing::Test {
protected:
    WindowRun();
    ~WindowRun() override;

    /// A noisy photograph-like picture.
    QString picture(const QString &name, int width, int height) const;
    QString file(const QString &name, const QByteArray &content) const;
    void setting(const QString &key, const QVariant &value) const;
    QVariant setting(const QString &key) const;

    void start(const QStringList &arguments);
    bool isRunning() const { return m_process.state() == QProcess::Running; }
    /// All that it has logged so far.
    QByteArray log() const;
    /// Until the log holds this text; false when it does not within a minute, or the program ended.
    bool waitForLog(const QByteArray &text);
    /// Sends keys to the window, in the names of X.
    bool keys(const QStringList &names);
    /// Presses a key once a second until the program ends, for a question that may take its time to appear.
    int pressUntilEnd(const QString &name);
    /// Its exit code, or -1 when it did not end within a minute.
    int waitForEnd();

private:
    /// Gives the window the keyboard; false when it has not taken it within a minute.
    bool focus();
    QString settingsFile() const;

    QTemporaryDir m_home;
    QProcess m_process;
};
