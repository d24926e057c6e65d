#include "WindowRun.h"

#include "tests/driver/WindowDriver.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPixmap>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QScreen>
#include <QSettings>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <system_error>

using namespace Qt::StringLiterals;

WindowRun::WindowRun() {
    const QDir home(m_home.path());
    for (const char *folder : {"pictures", "bin", "share/orvane-studio"})
        home.mkpath(QLatin1String(folder));
    // An installation of its own, since logs and the session list stand beside the models.
    for (const QString &built : {QStringLiteral(ORVANE_STUDIO), QStringLiteral(ORVANE_CLI)}) {
        const QString here = program(QFileInfo(built).fileName());
        std::error_code failed;
        std::filesystem::create_hard_link(built.toStdString(), here.toStdString(), failed);
        EXPECT_TRUE(!failed || QFile::copy(built, here));
    }
    for (const QString &data : {u"models"_s, u"filterData"_s})
        QFile::link(QStringLiteral(ORVANE_DATA "/") + data, home.filePath(u"share/orvane-studio/"_s + data));

    QProcessEnvironment environment = WindowDriver::environmentBelow(m_home);
    environment.insert(u"XDG_DATA_DIRS"_s, home.filePath(u"data"_s));
    environment.insert(u"ORVANE_GUI_WATCH"_s, u"1"_s);
    m_process.setProcessEnvironment(environment);
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    m_process.setStandardOutputFile(m_home.filePath(u"console.txt"_s));
}

WindowRun::~WindowRun() {
    if (HasFailure())
        qWarning().noquote() << log().right(6000);
    kill();
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
    const QString path = below(name);
    QDir().mkpath(QFileInfo(path).path());
    EXPECT_TRUE(image.save(path));
    return path;
}

QString WindowRun::file(const QString &name, const QByteArray &content) const {
    QFile out(below(name));
    QDir().mkpath(QFileInfo(out).path());
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

QString WindowRun::sessionFile() const {
    return m_home.filePath(u"share/orvane-studio/Logs/lastSessionFiles.txt"_s);
}

QString WindowRun::presetFile(const QString &name) const {
    return m_home.filePath(u"share/orvane-studio/Presets/%1.json"_s.arg(name));
}

QStringList WindowRun::session() const {
    QFile list(sessionFile());
    return list.open(QFile::ReadOnly) ? QString::fromUtf8(list.readAll()).split(u'\n', Qt::SkipEmptyParts)
                                      : QStringList();
}

QString WindowRun::program(const QString &name) const {
    return m_home.filePath(u"bin/"_s + name);
}

void WindowRun::start(const QStringList &arguments) {
    m_process.start(program(), arguments);
    ASSERT_TRUE(m_process.waitForStarted()) << m_process.errorString().toStdString();
}

std::unique_ptr<QProcess> WindowRun::startAnother(const QStringList &arguments) const {
    auto another = std::make_unique<QProcess>();
    another->setProcessEnvironment(m_process.processEnvironment());
    another->setProcessChannelMode(QProcess::MergedChannels);
    another->setStandardOutputFile(m_home.filePath(u"another.txt"_s));
    another->start(program(), arguments);
    EXPECT_TRUE(another->waitForStarted()) << another->errorString().toStdString();
    return another;
}

void WindowRun::kill() {
    m_process.kill();
    m_process.waitForFinished(60000);
}

QByteArray WindowRun::log() const {
    QFile console(m_home.filePath(u"console.txt"_s));
    return console.open(QFile::ReadOnly) ? console.readAll() : QByteArray();
}

bool WindowRun::waitUntil(const std::function<bool()> &condition) {
    for (const QDeadlineTimer deadline(60000); !condition();) {
        if (deadline.hasExpired() || !isRunning() || m_process.waitForFinished(100))
            return condition();
    }
    return true;
}

bool WindowRun::waitForLog(const QByteArray &text) {
    return waitUntil([&] { return log().contains(text); });
}

bool WindowRun::waitForSession(const QStringList &files) {
    return waitUntil([&] { return session() == files; });
}

bool WindowRun::keys(const QStringList &names) {
    if (!WindowDriver::focus(m_process))
        return false;
    for (const QString &name : names) {
        QThread::msleep(1000);
        if (!WindowDriver::send({u"key"_s, name}))
            return false;
    }
    return true;
}

bool WindowRun::pressUntil(const QStringList &names, const std::function<bool()> &condition) {
    if (!WindowDriver::focus(m_process))
        return condition();
    qsizetype next = 0;
    for (const QDeadlineTimer deadline(60000); !condition() && !deadline.hasExpired() && isRunning();) {
        if (m_process.waitForFinished(1000) || condition())
            break;
        WindowDriver::send({u"key"_s, names[next++ % names.size()]});
    }
    return condition();
}

int WindowRun::pressUntilEnd(const QStringList &names) {
    pressUntil(names, [this] { return !isRunning(); });
    return waitForEnd();
}

bool WindowRun::press(const QStringList &names) {
    return WindowDriver::send(QStringList(u"key"_s) + names);
}

bool WindowRun::click(QPoint at) {
    return WindowDriver::send(
        {u"mousemove"_s, QString::number(at.x()), QString::number(at.y()), u"click"_s, u"1"_s});
}

bool WindowRun::drag(QPoint from, QPoint to) {
    constexpr int Steps = 8; // each far enough apart to be a movement of its own
    QStringList tool;
    for (int i = 0; i <= Steps; ++i) {
        const QPoint at = from + (to - from) * i / Steps;
        tool << u"mousemove"_s << QString::number(at.x()) << QString::number(at.y());
        if (i == 0)
            tool << u"mousedown"_s << u"1"_s;
        tool << u"sleep"_s << u"0.03"_s;
    }
    return WindowDriver::send(tool << u"mouseup"_s << u"1"_s);
}

QImage WindowRun::screen() {
    return QGuiApplication::primaryScreen()->grabWindow(0).toImage().convertToFormat(QImage::Format_RGB32);
}

QByteArrayList WindowRun::complaints() const {
    QByteArrayList found;
    for (const QByteArray &line : log().split('\n')) {
        const bool severe = line.contains("Warn") || line.contains("Error") || line.contains("Fatal");
        if (severe && (line.contains("qrc:") || line.contains(".qml")))
            found << line;
    }
    return found;
}

int WindowRun::console(const QStringList &arguments) const {
    QProcess cli;
    cli.setProcessEnvironment(m_process.processEnvironment());
    cli.setStandardOutputFile(QProcess::nullDevice());
    cli.start(program(u"orvane-cli"_s), arguments);
    return cli.waitForFinished(120000) ? cli.exitCode() : -1;
}

double WindowRun::longestBlock() const {
    static const QRegularExpression report(u"\\[WATCH\\] frames .* computing ([0-9.]+) "_s);
    double longest = 0;
    const QString text = QString::fromUtf8(log());
    for (const QRegularExpressionMatch &match : report.globalMatch(text))
        longest = std::max(longest, match.captured(1).toDouble());
    std::printf("computing in the way of an event, 99 %% of the worst second: %.1f ms\n", longest);
    return longest;
}

int WindowRun::waitForEnd() {
    if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(60000))
        return -1;
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}
