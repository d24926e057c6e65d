// The running window, measured from outside: first frame, opening, zooming and panning, and what it uses when
// nothing happens; and from inside, what its column of filters costs. Needs a display; without one it starts
// itself on a virtual one.
#include "PanelBench.h"
#include "Row.h"
#include "StaleRun.h"
#include "StudioProcess.h"

#include "tests/driver/WindowDriver.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QProcess>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr double FirstFrame = 3;    // against an empty window
constexpr double OpenMs = 1000;     // 24 megapixels
constexpr double BlockedMs = 16;    // 99th percentile, by what the thread itself computes
constexpr double StaleRunMs = 50;   // until a stopped run has answered
constexpr double IdleProcessor = 1; // per cent of one core
constexpr int Rounds = 5;
constexpr int PanelPatienceMs = 600000;

QString program() {
    return QCoreApplication::applicationDirPath() + u"/orvane-studio"_s;
}

QString photograph(const QTemporaryDir &folder, const QString &name, int width, int height) {
    QImage image(width, height, QImage::Format_RGB888);
    quint32 seed = 5;
    for (int y = 0; y < height; ++y) {
        uchar *pixel = image.scanLine(y);
        for (int x = 0; x < width; ++x) {
            seed = seed * 1664525U + 1013904223U;
            const int edge = (x / 97 + y / 61) % 2 == 0 ? 40 : 0;
            for (int c = 0; c < 3; ++c)
                *pixel++ =
                    uchar(40 + 100LL * x / width + 50LL * y / height + edge + int(seed >> (27 - c) & 15));
        }
    }
    const QString path = folder.filePath(name);
    return image.save(path, nullptr, 92) ? path : QString();
}

/// What this program shows when it stands in for the program without anything in it.
int emptyWindow(int argc, char **argv) {
    const QGuiApplication application(argc, argv);
    QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
    QQmlApplicationEngine engine;
    engine.loadData("import QtQuick\nWindow { width: 1440; height: 900; visible: true }");
    auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
    if (!window)
        return 2;
    QObject::connect(window, &QQuickWindow::frameSwapped, window, [] {
        std::puts("first frame");
        std::fflush(stdout);
    });
    return QGuiApplication::exec();
}

int firstFrames() {
    std::vector<double> empty, studio;
    for (int i = 0; i < Rounds; ++i) {
        StudioProcess nothing(QCoreApplication::applicationFilePath());
        nothing.start({u"--empty"_s}, false);
        empty.push_back(nothing.waitFor("first frame"));
        StudioProcess window(program());
        window.start({}, true);
        studio.push_back(window.waitFor("[WATCH] first frame"));
    }
    std::printf("empty window %.0f ms, welcome screen %.0f ms\n", median(empty), median(studio));
    return row("first frame of the welcome screen / of an empty window", median(studio) / median(empty), "",
               FirstFrame);
}

/// A key, in the names of X.
void press(const QString &key) {
    WindowDriver::send({u"key"_s, key});
}

/// Opens a picture while another one is shown, as a person does.
int opening(const QTemporaryDir &folder) {
    const QString small = photograph(folder, u"small.jpg"_s, 600, 400);
    const QString large = photograph(folder, u"24.jpg"_s, 6000, 4000);
    QElapsedTimer clock;
    clock.start();
    const bool read = !QImage(large).isNull();
    const double plain = read ? double(clock.nsecsElapsed()) / 1e6 : -1;
    std::vector<double> shown;
    for (int i = 0; i < Rounds; ++i) {
        StudioProcess window(program());
        window.start({small, large}, true);
        window.waitFor("drawn whole: Original Image " + small.toUtf8());
        window.waitFor("[WATCH] frames");
        window.focus();
        window.watch(500);
        const double pressed = window.now();
        press(u"Right"_s);
        shown.push_back(window.waitFor("drawn whole: Original Image " + large.toUtf8()) - pressed);
    }
    std::printf("24 megapixels: decoded by the toolkit in %.0f ms\n", plain);
    return row("24 megapixels: from the key to the whole view drawn", median(shown), "ms", OpenMs);
}

struct Sum {
    int seconds = 0;
    int frames = 0;
    double interval = 0, wait = 0, longest = 0, computing = 0, longestComputing = 0;
};

/// The worst second of each.
Sum worst(const std::vector<StudioProcess::Second> &seconds) {
    Sum sum;
    for (const StudioProcess::Second &one : seconds) {
        ++sum.seconds;
        sum.frames += one.frames;
        sum.interval = std::max(sum.interval, one.interval);
        sum.wait = std::max(sum.wait, one.wait);
        sum.longest = std::max(sum.longest, one.longest);
        sum.computing = std::max(sum.computing, one.computing);
        sum.longestComputing = std::max(sum.longestComputing, one.longestComputing);
    }
    return sum;
}

int phase(StudioProcess &window, const char *name, const std::function<void()> &act) {
    window.watch(1100);
    window.takeSeconds();
    act();
    window.watch(1100);
    const Sum sum = worst(window.takeSeconds());
    std::printf("%s: %d frames in %d s, median interval %.1f ms in the worst second; an event waits %.1f ms "
                "(99 %%), at "
                "most %.1f ms; the thread computes at most %.1f ms\n",
                name, sum.frames, sum.seconds, sum.interval, sum.wait, sum.longest, sum.longestComputing);
    return row((QByteArray(name) + ": computing while an event waits, 99 %").constData(), sum.computing, "ms",
               BlockedMs);
}

int moving(const QTemporaryDir &folder) {
    const QString small = photograph(folder, u"small.jpg"_s, 600, 400);
    const QString huge = photograph(folder, u"100.jpg"_s, 11600, 8700);
    StudioProcess window(program());
    window.start({small, huge}, true);
    if (window.waitFor("drawn whole: Original Image " + small.toUtf8()) < 0)
        return 2;
    window.focus();
    const auto click = [](const QString &button) {
        WindowDriver::send({u"mousemove"_s, u"500"_s, u"450"_s, u"click"_s, u"--repeat"_s, u"60"_s,
                            u"--delay"_s, u"15"_s, button});
    };
    const auto drag = [&window](int sign) {
        WindowDriver::send({u"mousemove"_s, u"500"_s, u"450"_s, u"mousedown"_s, u"1"_s});
        window.watch(120);
        for (int i = 0; i < 60; ++i) {
            WindowDriver::send(
                {u"mousemove_relative"_s, u"--"_s, QString::number(5 * sign), QString::number(4 * sign)});
            window.watch(16);
        }
        window.watch(120);
        WindowDriver::send({u"mouseup"_s, u"1"_s});
    };
    int failed = phase(window, "100 megapixels, opened", [&] {
        const double pressed = window.now();
        press(u"Right"_s);
        const double shown = window.waitFor("drawn whole: Original Image " + huge.toUtf8());
        std::printf("100 megapixels: drawn %.0f ms after the key\n", shown - pressed);
    });
    failed |= phase(window, "100 megapixels, wheel out", [&] { click(u"5"_s); });
    failed |= phase(window, "100 megapixels, wheel in", [&] { click(u"4"_s); });
    failed |= phase(window, "100 megapixels, pan", [&] {
        drag(-1);
        drag(1);
    });
    return failed;
}

int thousands(const QTemporaryDir &folder) {
    const QString small = photograph(folder, u"small.jpg"_s, 600, 400);
    QDir(folder.path()).mkpath(u"many"_s);
    for (int i = 0; i < 5000; ++i)
        QFile::link(small, folder.filePath(u"many/%1.jpg"_s.arg(i)));
    StudioProcess window(program());
    int failed = 0;
    window.start({small}, true);
    window.waitFor("drawn whole: Original Image");
    window.focus();
    failed |= phase(window, "5000 files, opened from a second start", [&] {
        QProcess second;
        second.setProcessEnvironment(window.environment());
        second.start(program(), {folder.filePath(u"many"_s)});
        second.waitForFinished(60000);
        window.watch(2000);
    });
    failed |= phase(window, "5000 files, next image", [&] { press(u"Right"_s); });
    failed |= phase(window, "5000 files, one closes", [&] { press(u"ctrl+w"_s); });
    return failed;
}

int idle(const QTemporaryDir &folder) {
    const auto use = [](const QStringList &arguments, const QByteArray &until) {
        StudioProcess window(program());
        window.start(arguments, false);
        window.waitFor(until);
        window.watch(6000);
        const double before = window.processorSeconds();
        const double at = window.now();
        window.watch(5000);
        return 1e5 * (window.processorSeconds() - before) / (window.now() - at);
    };
    const QString small = folder.filePath(u"small.jpg"_s);
    return row("welcome screen, nothing happens: processor", use({}, "QML engine loaded"), "%",
               IdleProcessor) |
           row("picture, nothing happens: processor", use({small}, "Loading file"), "%", IdleProcessor);
}

/// In a process and a home of its own.
int panel(const QTemporaryDir &folder) {
    const QString small = photograph(folder, u"small.jpg"_s, 600, 400);
    const QTemporaryDir home;
    QProcess process;
    process.setProcessEnvironment(WindowDriver::environmentBelow(home));
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QCoreApplication::applicationFilePath(), {u"--panel"_s, small});
    return process.waitForFinished(PanelPatienceMs) && process.exitStatus() == QProcess::NormalExit
               ? process.exitCode()
               : 2;
}

} // namespace

int main(int argc, char **argv) {
    if (argc > 1 && qstrcmp(argv[1], "--empty") == 0)
        return emptyWindow(argc, argv);
    if (argc > 1 && qstrcmp(argv[1], "--panel") == 0)
        return measurePanel(argc, argv);
    const QCoreApplication application(argc, argv);
    const QStringList parts = QCoreApplication::arguments().mid(1);
    if (qEnvironmentVariableIsEmpty("DISPLAY"))
        return QProcess::execute(u"xvfb-run"_s, QStringList{u"-a"_s, u"-s"_s, u"-screen 0 1600x1200x24"_s,
                                                            QCoreApplication::applicationFilePath()} +
                                                    parts);
    qputenv("QT_QPA_PLATFORM", "xcb");
    const QTemporaryDir folder;
    const auto wanted = [&parts](const QString &part) { return parts.isEmpty() || parts.contains(part); };
    int result = 0;
    if (wanted(u"first"_s))
        result |= firstFrames();
    if (wanted(u"open"_s) || wanted(u"idle"_s))
        result |= opening(folder);
    if (wanted(u"idle"_s))
        result |= idle(folder);
    if (wanted(u"move"_s))
        result |= moving(folder);
    if (wanted(u"many"_s))
        result |= thousands(folder);
    if (wanted(u"panel"_s))
        result |= panel(folder);
    if (wanted(u"stop"_s)) {
        const StaleRuns runs = cancelStaleRuns();
        std::printf("a stale run computes for at most %.1f ms after being stopped, all threads together\n",
                    runs.computed);
        result |=
            row("a stale run has answered after being stopped, longest", runs.longest, "ms", StaleRunMs);
    }
    return result;
}
