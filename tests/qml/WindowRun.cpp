#include "WindowRun.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QRandomGenerator>
#include <QSettings>
#include <QThread>

using namespace Qt::StringLiterals;

WindowRun::WindowRun() {
    for (const char *folder : {"config", "data", "share", "run", "tmp", "pictures"})
        QDir(m_home.path()).mkpath(QLatin1String(folder));
    QProcessEnvironment surroundings = QProcessEnvironment::systemEnvironment();
    const auto below = [this](QLatin1StringView name) { return m_home.filePath(name); };
    surroundings.insert(u"HOME"_s, m_home.path());
    surroundings.insert(u"XDG_CONFIG_HOME"_s, below("config"_L1));
    surroundings.insert(u"XDG_DATA_HOME"_s, below("data"_L1));
    surroundings.insert(u"XDG_DATA_DIRS"_s, below("share"_L1));
    surroundings.insert(u"XDG_RUNTIME_DIR"_s, below("run"_L1));
    surroundings.insert(u"TMPDIR"_s, below("tmp"_L1));
    QFile::setPermissions(below("run"_L1), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    m_process.setProcessEnvironment(surroundings);
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    m_process.setStandardOutputFile(m_home.filePath(u"console.txt"_s));
}

WindowRun::~WindowRun() {
    if (HasFailure())
        qWarning().noquote() << log().right(6000);
    m_process.kill();
    m_process.waitForFinished(5000);
}

QString WindowRun::picture(const QString &name, int width, int height) const {
    QImage image(width, height, QImage::Format_RGB32);
    QRandomGenerator random(7);
    for (int y = 0; y < height; ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < width; ++x) {
            const int grain = random.bounded(61) - 30;
            const auto channel = [grain](int level) { return qBound(0, level + grain, 255); };
            line[x] = qRgb(channel(200 * x / width), channel(200 * y / height),
                           channel((x / 40 + y / 40) % 2 ? 160 : 90));
        }
    }
    const QString path = m_home.filePath(u"pictures/"_s + name);
    EXPECT_TRUE(image.save(path));
    return path;
}

QString WindowRun::file(const QString &name, const QByteArray &content) const {
    QFile out(m_home.filePath(u"pictures/"_s + name));
    EXPECT_TRUE(out.open(QFile::WriteOnly));
    out.write(content);
    return out.fileName();
}

QString WindowRun::settingsFile() const {
    return m_home.filePath(u"config/Orvane Works/Orvane Studio.conf"_s);
}

void WindowRun::setting(const QString &key, const QVariant &value) const {
    QSettings(settingsFile(), QSettings::IniFormat).setValue(key, value);
}

QVariant WindowRun::setting(const QString &key) const {
    return QSettings(settingsFile(), QSettings::IniFormat).value(key);
}

void WindowRun::start(const QStringList &arguments) {
    // The log's lines wait in the stream's buffer otherwise.
    m_process.start(u"stdbuf"_s, QStringList{u"-oL"_s, QStringLiteral(ORVANE_STUDIO)} + arguments);
    ASSERT_TRUE(m_process.waitForStarted()) << m_process.errorString().toStdString();
}

QByteArray WindowRun::log() const {
    QFile console(m_home.filePath(u"console.txt"_s));
    return console.open(QFile::ReadOnly) ? console.readAll() : QByteArray();
}

bool WindowRun::waitForLog(const QByteArray &text) {
    const QDeadlineTimer deadline(60000);
    while (!log().contains(text)) {
        if (deadline.hasExpired() || m_process.waitForFinished(100))
            return log().contains(text);
    }
    return true;
}

bool WindowRun::focus() {
    const QString id = QString::number(m_process.processId());
    const auto xdotool = [](const QStringList &arguments) {
        QProcess tool;
        tool.start(u"xdotool"_s, arguments);
        const bool done = tool.waitForFinished(10000) && tool.exitCode() == 0;
        return done ? QString::fromLatin1(tool.readAllStandardOutput()).trimmed() : QString();
    };
    // There is no window manager to give the window the keyboard. A window that is not on the screen yet refuses it.
    for (const QDeadlineTimer deadline(60000); !deadline.hasExpired() && isRunning(); QThread::msleep(100)) {
        const QStringList windows =
            xdotool({u"search"_s, u"--onlyvisible"_s, u"--pid"_s, id}).split(u'\n', Qt::SkipEmptyParts);
        for (const QString &window : windows) {
            xdotool({u"windowfocus"_s, window});
            if (xdotool({u"getwindowfocus"_s, u"-f"_s}) == window)
                return true;
        }
    }
    return false;
}

bool WindowRun::keys(const QStringList &names) {
    if (!focus())
        return false;
    for (const QString &name : names) {
        QThread::msleep(1000);
        if (QProcess::execute(u"xdotool"_s, {u"key"_s, name}) != 0)
            return false;
    }
    return true;
}

int WindowRun::pressUntilEnd(const QString &name) {
    for (const QDeadlineTimer deadline(60000); !deadline.hasExpired() && isRunning();) {
        if (!m_process.waitForFinished(1000) && isRunning())
            QProcess::execute(u"xdotool"_s, {u"key"_s, name});
    }
    return waitForEnd();
}

int WindowRun::waitForEnd() {
    if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(60000))
        return -1;
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}
