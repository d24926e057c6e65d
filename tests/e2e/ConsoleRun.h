#pragma once

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

struct Answer {
    int code = -1;
    std::string out, err;
};

/// A folder with pictures and the console program to run in it.
class ConsoleRun : public testing::Test {
protected:
    ConsoleRun();

    QString at(const QString &name) const { return m_folder.filePath(name); }
    /// A photograph-like picture of this size; its format follows the name.
    QString picture(const QString &name, int width = 48, int height = 32) const;
    QString file(const QString &name, const QByteArray &content) const;
    QByteArray contentOf(const QString &name) const;
    /// Names of the files below, sorted, relative to the folder.
    QStringList filesIn(const QString &folder) const;

    /// Runs it in the folder until its end, for two minutes at most.
    Answer run(const QStringList &arguments) const;
    void start(QProcess &process, const QStringList &arguments) const;

private:
    QTemporaryDir m_home, m_folder;
};
