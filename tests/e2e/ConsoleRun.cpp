#include "ConsoleRun.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>

using namespace Qt::StringLiterals;

ConsoleRun::ConsoleRun() {
    qputenv("XDG_CONFIG_HOME", m_home.path().toLocal8Bit());
}

QString ConsoleRun::picture(const QString &name, int width, int height) const {
    QImage image(width, height, QImage::Format_RGB888);
    quint32 noise = 1;
    for (int y = 0; y < height; ++y) {
        uchar *row = image.scanLine(y);
        for (int x = 0; x < 3 * width; ++x) {
            noise = noise * 1664525U + 1013904223U;
            row[x] = uchar(60 + 120 * x / (3 * width) + 40 * y / height + int(noise >> 29));
        }
    }
    EXPECT_TRUE(QDir().mkpath(QFileInfo(at(name)).path()));
    EXPECT_TRUE(image.save(at(name))) << name.toStdString();
    return at(name);
}

QString ConsoleRun::file(const QString &name, const QByteArray &content) const {
    QFile file(at(name));
    EXPECT_TRUE(file.open(QFile::WriteOnly));
    file.write(content);
    return at(name);
}

QByteArray ConsoleRun::contentOf(const QString &name) const {
    QFile file(at(name));
    EXPECT_TRUE(file.open(QFile::ReadOnly)) << name.toStdString();
    return file.readAll();
}

QStringList ConsoleRun::filesIn(const QString &folder) const {
    QStringList names;
    QDirIterator walk(at(folder), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (walk.hasNext())
        names.append(QDir(at(folder)).relativeFilePath(walk.next()));
    names.sort();
    return names;
}

void ConsoleRun::start(QProcess &process, const QStringList &arguments) const {
    process.setWorkingDirectory(m_folder.path());
    process.start(QStringLiteral(ORVANE_CLI), arguments);
}

Answer ConsoleRun::run(const QStringList &arguments) const {
    QProcess process;
    start(process, arguments);
    EXPECT_TRUE(process.waitForFinished(120000)) << "did not end: " << arguments.join(u' ').toStdString();
    return {process.exitCode(), process.readAllStandardOutput().toStdString(),
            process.readAllStandardError().toStdString()};
}
